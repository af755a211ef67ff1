#include "sim_card.h"

#include <algorithm>

namespace sim {
namespace {

constexpr uint8_t kSuccess = 0xDB;
constexpr uint8_t kSynchronisationFailure = 0xDC;

template <size_t size>
ByteArray<size> arrayFromJson(const JsonNode& node)
{
    ByteArray<size> array;
    std::ranges::copy(node.hexBytes(size, size), array.begin());
    return array;
}

/// Sequence numbers have their most significant byte first.
uint64_t numberOf(const Milenage::Sqn& sqn)
{
    uint64_t number = 0;
    for (const uint8_t byte : sqn) {
        number = number << 8U | byte;
    }
    return number;
}

Milenage::Sqn toSqn(uint64_t number)
{
    Milenage::Sqn sqn;
    for (auto byte = sqn.rbegin(); byte != sqn.rend(); ++byte, number >>= 8U) {
        *byte = static_cast<uint8_t>(number);
    }
    return sqn;
}

SimSecrets secretsFromJson(JsonNode node)
{
    SimSecrets secrets;
    secrets.k = arrayFromJson<16>(node.member("k"));
    const auto op = node.optionalMember("op");
    const auto opc = node.optionalMember("opc");
    if (op.has_value() == opc.has_value()) {
        node.fail("needs one of op and opc, and null for the other");
    }
    secrets.opc = opc ? arrayFromJson<16>(*opc) : Milenage::opcOf(secrets.k, arrayFromJson<16>(*op));
    secrets.nextSqn = numberOf(arrayFromJson<6>(node.member("sqn")));
    secrets.amf = arrayFromJson<2>(node.member("amf"));
    node.finish();
    return secrets;
}

template <size_t size>
void appendArray(Bytes& bytes, const ByteArray<size>& array)
{
    bytes.insert(bytes.end(), array.begin(), array.end());
}

template <size_t size>
void appendCounted(Bytes& bytes, const ByteArray<size>& array)
{
    bytes.push_back(size);
    appendArray(bytes, array);
}

/// AUTS. Its message authentication code is made as if AMF were zero.
Bytes resynchronisation(const Milenage& functions, uint64_t lastSqn)
{
    const Milenage::Sqn sqn = toSqn(lastSqn);
    const Milenage::Sqn concealed = exclusiveOr(sqn, functions.resyncAnonymityKey());
    const Milenage::Mac mac = functions.resyncMac(sqn, {});
    Bytes answer{kSynchronisationFailure, concealed.size() + mac.size()};
    appendArray(answer, concealed);
    appendArray(answer, mac);
    return answer;
}

} // namespace

SimCard simCardFromJson(JsonNode node)
{
    SimCard card;
    card.inserted = node.member("present").flag();
    card.present = card.inserted;
    const JsonNode imsi = node.member("imsi");
    card.imsi = imsi.text(15);
    if (!std::ranges::all_of(card.imsi, [](char c) { return c >= '0' && c <= '9'; })) {
        imsi.fail("must be decimal digits");
    }
    card.secrets = secretsFromJson(node.member("authentication"));
    node.finish();
    return card;
}

std::optional<Bytes> authenticate(SimSecrets& secrets, const Bytes& challenge)
{
    constexpr size_t kValue = sizeof(Milenage::Block);
    if (challenge.size() != 2 * (kValue + 1) || challenge[0] != kValue || challenge[kValue + 1] != kValue) {
        return std::nullopt;
    }
    Milenage::Block random;
    Milenage::Sqn concealedSqn;
    Milenage::Amf amf;
    Milenage::Mac mac;
    auto from = challenge.begin() + 1;
    const auto read = [&](auto& array) {
        std::copy_n(from, array.size(), array.begin());
        from += static_cast<std::ptrdiff_t>(array.size());
    };
    read(random);
    ++from;
    read(concealedSqn);
    read(amf);
    read(mac);

    const Milenage functions(secrets.k, secrets.opc, random);
    const Milenage::Sqn sqn = exclusiveOr(concealedSqn, functions.anonymityKey());
    if (mac != functions.networkMac(sqn, amf) || amf != secrets.amf) {
        return std::nullopt;
    }
    if (numberOf(sqn) < secrets.nextSqn) {
        return resynchronisation(functions, secrets.nextSqn - 1);
    }
    secrets.nextSqn = numberOf(sqn) + 1;
    Bytes answer{kSuccess};
    appendCounted(answer, functions.response());
    appendCounted(answer, functions.cipherKey());
    appendCounted(answer, functions.integrityKey());
    return answer;
}

} // namespace sim
