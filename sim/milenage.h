/// MILENAGE, the example algorithms by which a SIM card and its network know each other (3GPP TS 35.206).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sim {

template <size_t size>
using ByteArray = std::array<uint8_t, size>;

/// The first bytes of two arrays, bit by bit exclusive or.
template <size_t size>
ByteArray<size> exclusiveOr(ByteArray<size> a, const ByteArray<size>& b)
{
    for (size_t i = 0; i < size; ++i) {
        a[i] ^= b[i];
    }
    return a;
}

/// The functions of one card for one challenge. They throw std::runtime_error when libcrypto has no AES-128.
class Milenage {
public:
    using Block = ByteArray<16>;
    using Mac = ByteArray<8>;
    using Sqn = ByteArray<6>;
    using Amf = ByteArray<2>;

    /// @param k    the card's key
    /// @param opc  the operator's value, made for this card
    Milenage(const Block& k, const Block& opc, const Block& challenge);

    /// The operator's value for a card with this key.
    static Block opcOf(const Block& k, const Block& op);

    Mac networkMac(const Sqn& sqn, const Amf& amf) const; ///< f1
    Mac resyncMac(const Sqn& sqn, const Amf& amf) const;  ///< f1*
    Mac response() const;                                 ///< f2
    Block cipherKey() const;                              ///< f3
    Block integrityKey() const;                           ///< f4
    Sqn anonymityKey() const;                             ///< f5
    Sqn resyncAnonymityKey() const;                       ///< f5*

private:
    Block macs(const Sqn& sqn, const Amf& amf) const;

    /// What all functions but f1 and f1* come from: they differ in a rotation and a constant.
    Block output(size_t rotation, uint8_t constant) const;

    Block mKey;
    Block mOpc;
    Block mTemp;
};

} // namespace sim
