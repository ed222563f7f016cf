#include "sandbox/Sandbox.h"
#include "sandbox/wire/Certificates.h"
#include "tests/sandbox/WireClient.h"

#include <gtest/gtest.h>

namespace ombrivane::sandbox {

namespace {

struct Presented {
    const char* kind;
    const char* fault; ///< as OpenSSL words it; empty when a client accepts the certificate
};

class CertificateTest : public testing::TestWithParam<Presented> {};

TEST_P(CertificateTest, AClientThatChecksSeesWhatIsWrong) {
    Options options;
    options.certificate = certificateKindNamed(GetParam().kind).value();
    Sandbox sandbox(options);
    sandbox.start();
    const WireAnswer answer = exchange(sandbox.address(), sandbox.caFile(), {"GET", "/logos/H0.png", {}, ""});
    EXPECT_EQ(answer.handshakeFault, GetParam().fault);
    const bool isGood = std::string(GetParam().fault).empty();
    EXPECT_EQ(sandbox.requests().size(), isGood ? 1U : 0U);
    sandbox.stop();
    EXPECT_EQ(sandbox.counters().connections, 1U);
    EXPECT_EQ(sandbox.counters().handshakeFailures, isGood ? 0U : 1U);
}

INSTANTIATE_TEST_SUITE_P(Kinds, CertificateTest,
                         testing::Values(Presented{"good", ""}, //
                                         Presented{"self-signed", "self-signed certificate"},
                                         Presented{"expired", "certificate has expired"},
                                         Presented{"not-yet-valid", "certificate is not yet valid"},
                                         Presented{"wrong-host", "hostname mismatch"},
                                         Presented{"wrong-alternative-names", "hostname mismatch"},
                                         Presented{"untrusted", "unable to get local issuer certificate"}));

TEST(CertificateNames, AnUnknownKindIsNoKind) { EXPECT_FALSE(certificateKindNamed("bad").has_value()); }

} // namespace

} // namespace ombrivane::sandbox
