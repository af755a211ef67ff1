// SIM cards that authenticate, and their power.
#include "milenage.h"
#include "modem_fixture.h"

namespace sim::test {
namespace {

using testing::ElementsAre;
using testing::Pair;

Bytes fromHex(const std::string& digits)
{
    const nlohmann::json json = digits;
    return JsonNode(json, "").hexBytes(0, digits.size());
}

template <size_t size>
ByteArray<size> array(const std::string& digits)
{
    ByteArray<size> bytes{};
    std::ranges::copy(fromHex(digits), bytes.begin());
    return bytes;
}

/// Of a test set of 3GPP TS 35.208; the cards below have another one.
TEST(Milenage, GivesThePublishedValues)
{
    const auto k = array<16>("fec86ba6eb707ed08905757b1bb44b8f");
    const auto opc = Milenage::opcOf(k, array<16>("dbc59adcb6f9a0ef735477b7fadf8374"));
    EXPECT_EQ(opc, array<16>("1006020f0a478bf6b699f15c062e42b3"));
    const Milenage functions(k, opc, array<16>("9f7c8d021accf4db213ccff0c7f71a6a"));
    const auto sqn = array<6>("9d0277595ffc");
    const auto amf = array<2>("725c");
    EXPECT_EQ(functions.networkMac(sqn, amf), array<8>("9cabc3e99baf7281"));
    EXPECT_EQ(functions.resyncMac(sqn, amf), array<8>("95814ba2b3044324"));
    EXPECT_EQ(functions.response(), array<8>("8011c48c0c214ed2"));
    EXPECT_EQ(functions.cipherKey(), array<16>("5dbdbb2954e8f3cde665b046179a5098"));
    EXPECT_EQ(functions.integrityKey(), array<16>("59a92d3b476a0443487055cf88b2307b"));
    EXPECT_EQ(functions.anonymityKey(), array<6>("33484dc2136b"));
    EXPECT_EQ(functions.resyncAnonymityKey(), array<6>("deacdd848cc6"));
}

class SimCards : public ModemTest {
protected:
    const std::string mRand = "1023553cbe9637a89d218ae64dae47bf35";
    const std::string mAutn = "1055f328b43577b9b94a9ffac354dfafb3";
    const std::string mKeys = "10b40ba9a3c58b2a05bbf0d987b21bf8cb10f769bcd751044604127672711c6d3441";

    /// What the card says, in digits; nothing when it fails.
    std::string challenge(const std::string& digits, size_t missing = 0, uint8_t slotBit = 1)
    {
        const Bytes data = fromHex(digits);
        const Value length = toBytes(static_cast<uint16_t>(data.size() + missing));
        auto answer =
            ask(1333, {{257, u8(1)}, {256, u8(0)}, {260, u8(4)}, {258, length}, {0x8103, data}}, slotBit);
        if (answer[0] != i32(0)) {
            EXPECT_THAT(answer, ElementsAre(Pair(0, i32(1))));
            return {};
        }
        const auto content = std::get<Bytes>(answer[0x8102]);
        EXPECT_EQ(answer[257], Value(toBytes(static_cast<uint16_t>(content.size()))));
        return hexDigits(content);
    }
};

TEST_F(SimCards, AnswerTheirNetworkOnce)
{
    const std::string otherMac = "1055f328b43577b9b94a9ffac354dfafb4";
    for (const auto& wrong : {std::string(), mRand, mRand + otherMac, mRand + mAutn + "00",
                              "11" + mRand.substr(2) + mAutn, mRand + "00" + mAutn.substr(2)}) {
        EXPECT_EQ(challenge(wrong), "") << wrong;
    }
    EXPECT_EQ(challenge(mRand + mAutn, 1), "");
    EXPECT_EQ(challenge(mRand + mAutn, 0, 4), "") << "no card";
    EXPECT_EQ(challenge(mRand + mAutn), "db08a54211d5e3ba50bf" + mKeys);

    // The sequence number was used: AUTS tells the last one, ff9bb4d0b607, concealed by 451e8beca43b.
    const auto tellsLast = testing::AllOf(testing::StartsWith("dc0eba853f3c123c"), testing::SizeIs(2 * 16));
    EXPECT_THAT(challenge(mRand + mAutn), tellsLast);
    control(R"({"command": "restart"})");
    EXPECT_THAT(challenge(mRand + mAutn), tellsLast) << "the card remembers";
    EXPECT_EQ(challenge(mRand + mAutn, 0, 2).size(), 2 * 44U) << "slots are apart";
}

TEST_F(SimCards, NeedPower)
{
    const auto power = [&](uint8_t on) {
        mIndications.clear();
        EXPECT_THAT(ask(1353, {{256, u8(1)}, {257, u8(on)}}), ElementsAre(Pair(0, i32(0))));
        return ask(555)[258];
    };
    ask(3, {{0x8100, text("AT+ESBP=5,\"SBP_DSDA\",2")}});
    EXPECT_EQ(power(0), u8(0)) << "one of two cards";
    ASSERT_EQ(mIndications.size(), 2U);
    EXPECT_THAT(mIndications[0].fields, ElementsAre(Pair(257, u8(2)), Pair(258, u8(0))));
    EXPECT_THAT(mIndications[1].fields, ElementsAre(Pair(256, u8(1))));
    EXPECT_EQ(challenge(mRand + mAutn), "");
    EXPECT_EQ(power(1), u8(1));
    EXPECT_EQ(challenge(mRand + mAutn).size(), 2 * 44U);
}

} // namespace
} // namespace sim::test
