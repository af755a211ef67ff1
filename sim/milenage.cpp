#include "milenage.h"

#include <openssl/evp.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace sim {
namespace {

using Block = Milenage::Block;

Block encrypt(const Block& key, const Block& block)
{
    const std::unique_ptr<EVP_CIPHER_CTX, void (*)(EVP_CIPHER_CTX*)> context(EVP_CIPHER_CTX_new(),
                                                                             EVP_CIPHER_CTX_free);
    Block out{};
    int length = 0;
    const bool done =
        context != nullptr &&
        EVP_EncryptInit_ex(context.get(), EVP_aes_128_ecb(), nullptr, key.data(), nullptr) == 1 &&
        EVP_CIPHER_CTX_set_padding(context.get(), 0) == 1 &&
        EVP_EncryptUpdate(context.get(), out.data(), &length, block.data(), static_cast<int>(block.size())) ==
            1;
    if (!done || length != static_cast<int>(out.size())) {
        throw std::runtime_error("libcrypto can't encrypt with AES-128");
    }
    return out;
}

/// To the left, by whole bytes.
Block rotated(Block block, size_t bytes)
{
    std::rotate(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(bytes), block.end());
    return block;
}

template <size_t size>
ByteArray<size> part(const Block& block, size_t begin)
{
    ByteArray<size> bytes;
    std::copy_n(block.begin() + static_cast<std::ptrdiff_t>(begin), size, bytes.begin());
    return bytes;
}

} // namespace

Milenage::Milenage(const Block& k, const Block& opc, const Block& challenge)
    : mKey(k), mOpc(opc), mTemp(encrypt(k, exclusiveOr(challenge, opc)))
{}

Block Milenage::opcOf(const Block& k, const Block& op)
{
    return exclusiveOr(encrypt(k, op), op);
}

Block Milenage::macs(const Sqn& sqn, const Amf& amf) const
{
    Block in;
    auto to = in.begin();
    for (int half = 0; half < 2; ++half) {
        to = std::ranges::copy(sqn, to).out;
        to = std::ranges::copy(amf, to).out;
    }
    return exclusiveOr(encrypt(mKey, exclusiveOr(mTemp, rotated(exclusiveOr(in, mOpc), 8))), mOpc);
}

Block Milenage::output(size_t rotation, uint8_t constant) const
{
    Block in = rotated(exclusiveOr(mTemp, mOpc), rotation);
    in.back() ^= constant;
    return exclusiveOr(encrypt(mKey, in), mOpc);
}

Milenage::Mac Milenage::networkMac(const Sqn& sqn, const Amf& amf) const
{
    return part<8>(macs(sqn, amf), 0);
}

Milenage::Mac Milenage::resyncMac(const Sqn& sqn, const Amf& amf) const
{
    return part<8>(macs(sqn, amf), 8);
}

Milenage::Mac Milenage::response() const
{
    return part<8>(output(0, 1), 8);
}

Block Milenage::cipherKey() const
{
    return output(4, 2);
}

Block Milenage::integrityKey() const
{
    return output(8, 4);
}

Milenage::Sqn Milenage::anonymityKey() const
{
    return part<6>(output(0, 1), 0);
}

Milenage::Sqn Milenage::resyncAnonymityKey() const
{
    return part<6>(output(12, 8), 0);
}

} // namespace sim
