// Putting the test's authority into the user's store and taking it out again.
#include "tests/support/authority.h"

#ifdef _WIN32

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <wincrypt.h>

namespace {

std::vector<unsigned char> ReadAuthority() {
  std::ifstream file(std::string(std::getenv("QEL_TLS_FOLDER")) + "/ca.pem");
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  std::vector<unsigned char> bytes(text.size());
  auto size = static_cast<DWORD>(bytes.size());
  EXPECT_TRUE(::CryptStringToBinaryA(text.c_str(), static_cast<DWORD>(text.size()),
                                     CRYPT_STRING_BASE64HEADER, bytes.data(), &size, nullptr,
                                     nullptr));
  bytes.resize(size);
  return bytes;
}

/// By which the store names the certificate: SHA-1 in capital digits.
std::wstring Thumbprint(const std::vector<unsigned char>& certificate) {
  unsigned char digest[20];
  DWORD size = sizeof digest;
  ::CryptHashCertificate(0, CALG_SHA1, 0, certificate.data(),
                         static_cast<DWORD>(certificate.size()), digest, &size);
  std::wstring text;
  for (const unsigned char byte : digest) {
    text += L"0123456789ABCDEF"[byte >> 4];
    text += L"0123456789ABCDEF"[byte & 15];
  }
  return text;
}

}  // namespace

TTrustedAuthority::TTrustedAuthority() {
  const auto certificate = ReadAuthority();
  HCERTSTORE store =
      ::CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_CURRENT_USER, L"Root");
  EXPECT_TRUE(::CertAddEncodedCertificateToStore(store, X509_ASN_ENCODING, certificate.data(),
                                                 static_cast<DWORD>(certificate.size()),
                                                 CERT_STORE_ADD_ALWAYS, nullptr));
  ::CertControlStore(store, 0, CERT_STORE_CTRL_COMMIT, nullptr);
  ::CertCloseStore(store, 0);
}

// Wine's store forgets nothing by itself.
TTrustedAuthority::~TTrustedAuthority() {
  const std::wstring key = L"Software\\Microsoft\\SystemCertificates\\Root\\Certificates\\" +
                           Thumbprint(ReadAuthority());
  ::RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
}

#else

TTrustedAuthority::TTrustedAuthority() = default;
TTrustedAuthority::~TTrustedAuthority() = default;

#endif
