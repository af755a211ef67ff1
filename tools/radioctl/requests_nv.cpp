#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioNvItem> =
    std::tuple{member("failure", &RadioNvItem::failure), member("dataLen", &RadioNvItem::dataLen),
               bytesMember("data", &RadioNvItem::dataLen, &RadioNvItem::data)};

std::vector<Request> nvRequests()
{
    const std::string group = "NV items";
    const Argument id = number<int>("id", "the item's number");
    const Argument index = number<signed char>("index", "which of its records");
    return {
        {"radioReadNv",
         group,
         "Read one item",
         {id, index},
         [](const Arguments& in, Reply to) {
             return radioReadNv(in.number("id"), in.number<signed char>("index"), to.userData, to.callback);
         },
         show(&Rsp::nvItemData)},
        {"radioWriteNv",
         group,
         "Write one item",
         {id, index, bytes("data", "the new contents", kRadioMaxNvBytes)},
         [](const Arguments& in, Reply to) {
             const auto& data = in.bytes("data");
             const unsigned char empty = 0; // the library wants a pointer for no bytes too
             return radioWriteNv(in.number("id"), in.number<signed char>("index"),
                                 data.empty() ? &empty : data.data(), static_cast<unsigned int>(data.size()),
                                 to.userData, to.callback);
         },
         [](const Rsp& rsp) {
             return Json{{"failure", rsp.nvWrite.failure}};
         }},
    };
}

} // namespace radioctl
