// Preloaded into the lab's nodes. Tor makes RSA keys for its connections at each start, which is
// most of the work of a lab's start; this library reads them from files. Each process asks for its
// keys in the same order, so a file's name has their length and that number:
// $VELDLAB_LINK_KEYS/link-2048-1.
// Without a file OpenSSL makes the key. Only the lab's nodes have this library, never a program
// under test.

#include <dlfcn.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>

// Functions of libcrypto, which the program has loaded; these few need no headers.
extern "C" {
struct RSA;
struct BIGNUM;
struct BN_GENCB;
RSA *PEM_read_RSAPrivateKey(FILE *, RSA **, int (*)(char *, int, int, void *), void *);
int RSA_bits(const RSA *);
void RSA_free(RSA *);
void RSA_get0_key(const RSA *, const BIGNUM **, const BIGNUM **, const BIGNUM **);
void RSA_get0_factors(const RSA *, const BIGNUM **, const BIGNUM **);
void RSA_get0_crt_params(const RSA *, const BIGNUM **, const BIGNUM **, const BIGNUM **);
int RSA_set0_key(RSA *, BIGNUM *, BIGNUM *, BIGNUM *);
int RSA_set0_factors(RSA *, BIGNUM *, BIGNUM *);
int RSA_set0_crt_params(RSA *, BIGNUM *, BIGNUM *, BIGNUM *);
BIGNUM *BN_dup(const BIGNUM *);
}

namespace {

RSA *keptKey(int bits)
{
    static std::atomic<int> asked{0};
    const char *folder = std::getenv("VELDLAB_LINK_KEYS");
    const int number = ++asked;
    if (!folder)
        return nullptr;
    const std::string path = std::string(folder) + "/link-" + std::to_string(bits) + "-"
        + std::to_string(number);
    FILE *file = std::fopen(path.c_str(), "re");
    if (!file)
        return nullptr;
    RSA *key = PEM_read_RSAPrivateKey(file, nullptr, nullptr, nullptr);
    std::fclose(file);
    if (key && RSA_bits(key) != bits) {
        RSA_free(key);
        return nullptr;
    }
    return key;
}

// Tor's child programs do not need this.
struct Forget {
    Forget() { ::unsetenv("LD_PRELOAD"); }
} const forget;

} // namespace

extern "C" int RSA_generate_key_ex(RSA *key, int bits, BIGNUM *exponent, BN_GENCB *progress)
{
    if (RSA *kept = keptKey(bits)) {
        const BIGNUM *n, *e, *d, *p, *q, *dp, *dq, *inverse;
        RSA_get0_key(kept, &n, &e, &d);
        RSA_get0_factors(kept, &p, &q);
        RSA_get0_crt_params(kept, &dp, &dq, &inverse);
        const bool taken = RSA_set0_key(key, BN_dup(n), BN_dup(e), BN_dup(d))
            && RSA_set0_factors(key, BN_dup(p), BN_dup(q))
            && RSA_set0_crt_params(key, BN_dup(dp), BN_dup(dq), BN_dup(inverse));
        RSA_free(kept);
        return taken;
    }
    using Make = int (*)(RSA *, int, BIGNUM *, BN_GENCB *);
    static const auto make = reinterpret_cast<Make>(::dlsym(RTLD_NEXT, "RSA_generate_key_ex"));
    return make(key, bits, exponent, progress);
}
