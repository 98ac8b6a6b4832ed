#include "seed/RepeatableRandom.h"

#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/params.h>
#include <openssl/rand.h>

#include <memory>

namespace {

// Each page that is written takes 48 bytes: its vector, and the filling of the room behind its check sum.
constexpr std::size_t poolSize = 4UL * 1024 * 1024;

// Different texts must not share vectors under one key, so the pool is a digest of the text, drawn out to its length.
[[nodiscard]] bool Fill(QByteArray& pool, const QByteArray& text) {
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> digest(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    return digest && EVP_DigestInit_ex(digest.get(), EVP_shake256(), nullptr) == 1 &&
           EVP_DigestUpdate(digest.get(), text.constData(), std::size_t(text.size())) == 1 &&
           EVP_DigestFinalXOF(digest.get(), reinterpret_cast<unsigned char*>(pool.data()), poolSize) == 1;
}

} // namespace

bool DrawRandomFrom(const QByteArray& text) {
    QByteArray pool(qsizetype(poolSize), '\0');
    // OpenSSL's own generator for tests of known answers. It gives out the bytes it is given, and copies them first.
    if (!Fill(pool, text) || RAND_set_DRBG_type(nullptr, "TEST-RAND", nullptr, nullptr, nullptr) != 1) {
        return false;
    }
    const OSSL_PARAM settings[] = {
        OSSL_PARAM_construct_octet_string(OSSL_RAND_PARAM_TEST_ENTROPY, pool.data(), poolSize),
        OSSL_PARAM_construct_end(),
    };
    EVP_RAND_CTX* generator = RAND_get0_public(nullptr);
    return generator != nullptr && EVP_RAND_CTX_set_params(generator, settings) == 1;
}
