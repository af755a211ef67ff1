if(RADIO_SANITIZE)
    add_compile_options(-fsanitize=${RADIO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${RADIO_SANITIZE})
endif()

# Which lines run is asked of the library alone; see src/CMakeLists.txt.
if(RADIO_COVERAGE)
    set(RADIO_COVERAGE_OPTIONS -fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()
