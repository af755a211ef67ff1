#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RFTXINFO> =
    std::tuple{member("rat", &RFTXINFO::rat), member("band", &RFTXINFO::band),
               member("channel", &RFTXINFO::channel), member("power", &RFTXINFO::power, "dBm"),
               member("antenna", &RFTXINFO::antenna)};

template <>
inline constexpr auto kMembers<TXADCINFO> =
    std::tuple{member("rat", &TXADCINFO::rat), member("antenna", &TXADCINFO::antenna)};

std::vector<Request> rfRequests()
{
    const std::string group = "Radio frequency control";
    const auto rat = number<int>("rat", "radio access technology");
    return {
        {"radioSetAsdivFixPosition",
         group,
         "Fix antennas by the commands of the RF feature file",
         {number<int>("featureId", "a feature of the file"), number<int>("index", "one of its positions")},
         call(radioSetAsdivFixPosition),
         nullptr},
        {"radioSetAtcTableInit",
         group,
         "Enter the modem's RF test tables",
         {},
         call(radioSetAtcTableInit),
         nullptr},
        {"radiosetAtcTableDeInit",
         group,
         "Leave the modem's RF test tables",
         {},
         call(radiosetAtcTableDeInit),
         nullptr},
        {"radioSetTasForceIdxByRat",
         group,
         "Force a transmit antenna (not supported by the library)",
         {rat, number<int>("index", "the antenna"), number<int>("state", "the state"),
          number<int>("mode", "how")},
         call(radioSetTasForceIdxByRat),
         nullptr},
        {"radioSetMaxTxPower",
         group,
         "Limit the transmit power (not supported by the library)",
         {rat, number<int>("band", "operating band"), number<int>("power", "dBm")},
         call(radioSetMaxTxPower),
         nullptr},
        {"radioSetRfTxInfo",
         group,
         "Set up a transmitter (not supported by the library)",
         {record<RFTXINFO>("info", "the transmitter")},
         call(radioSetRfTxInfo),
         nullptr},
        {"radioGetTxAdc",
         group,
         "Read a transmitter's converter (not supported by the library)",
         {record<TXADCINFO>("info", "the transmitter")},
         call(radioGetTxAdc),
         nullptr},
        {"radioSetRfTxPower",
         group,
         "Set a transmitter's power (not supported by the library)",
         {record<RFTXINFO>("info", "the transmitter")},
         call(radioSetRfTxPower),
         nullptr},
        {"radioSetComboRfTxInfo",
         group,
         "Set up several transmitters; here, one (not supported by the library)",
         {record<RFTXINFO>("info", "the transmitter")},
         [](const Arguments& in, Reply to) {
             return radioSetComboRfTxInfo({in.at<RFTXINFO>(0)}, to.userData, to.callback);
         },
         nullptr},
    };
}

} // namespace radioctl
