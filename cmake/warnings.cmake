add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
                    -Wconversion -Wno-missing-field-initializers -Werror)
