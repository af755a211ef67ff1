if(RADIO_SANITIZE)
    add_compile_options(-fsanitize=${RADIO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${RADIO_SANITIZE})
endif()
