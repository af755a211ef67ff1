#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioQrxlvminCfgInfo> = std::tuple{
    member("enable", &RadioQrxlvminCfgInfo::enable, "of options 13 and 14: 0 off, anything else on"),
    member("option", &RadioQrxlvminCfgInfo::option,
           "11 values for LTE, 12 for NR, 13 switch for LTE, 14 for NR"),
    member("q1", &RadioQrxlvminCfgInfo::q1, "q1 to q3: LTE"),
    member("q2", &RadioQrxlvminCfgInfo::q2),
    member("q3", &RadioQrxlvminCfgInfo::q3),
    member("q4", &RadioQrxlvminCfgInfo::q4, "q4 to q9: NR"),
    member("q5", &RadioQrxlvminCfgInfo::q5),
    member("q6", &RadioQrxlvminCfgInfo::q6),
    member("q7", &RadioQrxlvminCfgInfo::q7),
    member("q8", &RadioQrxlvminCfgInfo::q8),
    member("q9", &RadioQrxlvminCfgInfo::q9),
};

template <>
inline constexpr auto kMembers<RadioQrxlvmin> =
    std::tuple{member("rat", &RadioQrxlvmin::rat), member("values", &RadioQrxlvmin::values)};

template <>
inline constexpr auto kMembers<RadioArrearageCfgInfo> = std::tuple{
    member("option", &RadioArrearageCfgInfo::option,
           "11 to 17: what is configured; 18: the switch of all of it"),
    member("enable", &RadioArrearageCfgInfo::enable, "of option 18: 0 off, anything else on"),
    member("a", &RadioArrearageCfgInfo::a,
           "13 sends the first 15, 14 the nine from the sixth on, 17 the last six"),
};

template <>
inline constexpr auto kMembers<RadioLockCellInfoType> = std::tuple{
    member("lockType", &RadioLockCellInfoType::lockType, "0, 3, 4 or 5"),
    member("bandIndicator", &RadioLockCellInfoType::bandIndicator, "0 or 1"),
    member("arfcn", &RadioLockCellInfoType::arfcn),
    member("pci", &RadioLockCellInfoType::pci, "physical cell identity"),
    member("mode", &RadioLockCellInfoType::mode,
           "1 and 2 each add a last value to the command, others don't"),
};

namespace {

/// Technologies by name, in order of preference.
Argument technologyOrder()
{
    constexpr char kForm[] = "some of lte, nr, umts and gsm with commas between them";
    const auto parse = [](std::span<const std::string> words) -> std::any {
        const Argument one = choice<int>("rats", "", {{"lte", 4}, {"nr", 5}, {"umts", 1}, {"gsm", 0}});
        std::vector<int> rats;
        const std::string& text = words.front();
        for (size_t begin = 0; begin <= text.size();) {
            const size_t end = std::min(text.find(',', begin), text.size());
            const std::string word = text.substr(begin, end - begin);
            rats.push_back(std::any_cast<int>(one.parse({&word, 1})));
            begin = end + 1;
        }
        return rats;
    };
    return {"rats", "in order of preference: lte,nr,umts,gsm or lte,umts,gsm or nr,lte,umts,gsm", kForm,
            parse};
}

} // namespace

std::vector<Request> campingRequests()
{
    const std::string group = "Camping and barring";
    const Argument notSent = number<int>("reserve", "not sent");
    return {
        {"radioSetBackgroundSearch",
         group,
         "Set whether the modem searches in the background for better technologies",
         {choice<int>("rat", "what is searched for", {{"lte", 1}, {"nr", 0}}),
          choice<bool>("ignoreNeighbourList", "whether frequencies outside of the neighbour list count",
                       kOnOff<bool>),
          choice<bool>("enable", "whether to search", kOnOff<bool>)},
         call(radioSetBackgroundSearch),
         nullptr},
        {"radioSetQrxlvminCfg",
         group,
         "Set the least receive levels",
         {record<RadioQrxlvminCfgInfo>("info", "the levels, or a switch")},
         call(radioSetQrxlvminCfg),
         nullptr},
        {"radioGetQrxlvminCfg",
         group,
         "The least receive levels",
         {choice<int>("rat", "the radio access technology", {{"lte", 13}, {"nr", 20}})},
         call(radioGetQrxlvminCfg),
         show(&Rsp::qrxlvmin)},
        {"radioSetArrearageCfg",
         group,
         "Set what happens for a SIM card in arrears",
         {record<RadioArrearageCfgInfo>("info", "values as the modem defines them")},
         call(radioSetArrearageCfg),
         nullptr},
        {"radioClearStoredFrequency",
         group,
         "Have the modem forget the frequencies that it remembers",
         {number<int>("option", "logged only")},
         call(radioClearStoredFrequency),
         nullptr},
        {"radioSetRatScan",
         group,
         "Set in which order the modem scans the technologies",
         {technologyOrder()},
         callWithList(radioSetRatScan),
         nullptr},
        {"radioLockCellAndBand",
         group,
         "Keep the modem on one cell",
         {record<RadioLockCellInfoType>("info", "the cell")},
         call(radioLockCellAndBand),
         nullptr},
        {"radioUnlockCellAndBand",
         group,
         "End the lock of a cell",
         {number<int>("option", "not sent")},
         call(radioUnlockCellAndBand),
         nullptr},
        {"radioEnableCellBarring",
         group,
         "Set whether a cell is barred after every radio link failure",
         {choice<unsigned char>("value", "whether", kOnOff<unsigned char>)},
         call(radioEnableCellBarring),
         nullptr},
        {"radioSetPingpongBarSetting",
         group,
         "Set whether cells are barred between which the modem goes to and fro",
         {choice<int>("type", "which ones are", {{"none", 0}, {"lte", 1}, {"nr", 2}, {"both", 3}}),
          number<int>("barTime", "how long, as the modem counts it"),
          number<int>("period", "in which time changes are counted"),
          number<int>("hitCnt", "how many changes are too many"), number<int>("reserve", "logged only")},
         call(radioSetPingpongBarSetting),
         nullptr},
        {"radioPerformRetHighRat",
         group,
         "Have the modem return to a higher technology",
         {choice<int>("rat", "the radio access technology", {{"lte", 4}, {"nr", 5}}), notSent},
         call(radioPerformRetHighRat),
         nullptr},
        {"radioSetRedirectOptSetting",
         group,
         "Set what the modem does when redirections from LTE to NR keep failing",
         {number<int>("value", "as the modem defines it"), number<int>("value2", "not sent"),
          number<int>("value3", "not sent"), number<int>("value4", "not sent"),
          number<int>("value5", "not sent"), number<int>("value6", "not sent")},
         call(radioSetRedirectOptSetting),
         nullptr},
        {"radioSetAttachPriority",
         group,
         "Set whether the attach of the SIM card without data service comes last",
         {number<int>("value", "as the modem defines it"), number<int>("value2", "not sent"),
          number<int>("value3", "not sent"), number<int>("value4", "not sent"),
          number<int>("value5", "not sent")},
         call(radioSetAttachPriority),
         nullptr},
    };
}

} // namespace radioctl
