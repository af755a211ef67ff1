/// Answers to AT commands, of which every field that is promised must be there.
#include "at/at_cmd_parser.h"
#include "mindroid/exception.h"

#include <cstdlib>

namespace {

void readAll(mindroid::Parcel& answer)
{
    if (!answer.getBoolean() || answer.atEnd()) {
        return;
    }
    for (int32_t left = answer.getInt(); left > 0; --left) {
        if (answer.getByte() == AtCmdParser::kInteger) {
            answer.getInt();
        } else {
            answer.getString();
        }
    }
    if (!answer.atEnd()) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = mindroid::String::valueOf({reinterpret_cast<const char*>(data), size});
    const AtCmdParser& parser = AtCmdParser::instance();
    readAll(*parser.parserAtCmdResponse(text));
    const auto raw = parser.parserAtCmdResponseAsRawStr(text);
    if (raw->getBoolean() && !raw->atEnd()) {
        raw->getString();
    }
    return 0;
}
