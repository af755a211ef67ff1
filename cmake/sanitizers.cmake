if(RADIO_SANITIZE)
    add_compile_options(-fsanitize=${RADIO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # Instrumented standard headers look uninitialised to g++ 12; the plain build warns of what really is.
        add_compile_options(-Wno-maybe-uninitialized)
    endif()
    add_link_options(-fsanitize=${RADIO_SANITIZE})
endif()
