# Writes a C++ source that holds the file INPUT as the text sim::embedded::NAME. As numbers, not as a string literal:
# a literal has a length limit that compilers warn about.
file(READ ${INPUT} bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
string(REGEX REPLACE "((0x..,)(0x..,)(0x..,)(0x..,)(0x..,)(0x..,)(0x..,)(0x..,))" "\\1\n" bytes "${bytes}")
file(WRITE ${OUTPUT} "#include \"embedded.h\"

namespace {
constexpr char ${NAME}Bytes[] = {
${bytes}};
} // namespace

const std::string_view sim::embedded::${NAME}{${NAME}Bytes, sizeof(${NAME}Bytes)};
")
