// How a server's certificate is checked: its chain, its dates, its name.
#include "vcl/net/private/tlscertificate_win32.h"

#include <array>

#include "vcl/net/private/tlsengine.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"

namespace vcl::os {
namespace {

struct TFreeChain {
  void operator()(const CERT_CHAIN_CONTEXT* chain) const { CertFreeCertificateChain(chain); }
};
using TChain = std::unique_ptr<const CERT_CHAIN_CONTEXT, TFreeChain>;

std::string Fingerprint(const CERT_CONTEXT& certificate) {
  std::array<unsigned char, 32> digest{};
  DWORD size = digest.size();
  CryptHashCertificate(0, CALG_SHA_256, 0, certificate.pbCertEncoded, certificate.cbCertEncoded,
                       digest.data(), &size);
  return FingerprintText(digest.data(), digest.size());
}

std::string Subject(const CERT_CONTEXT& certificate) {
  const auto ask = [&](wchar_t* text, DWORD size) {
    return CertNameToStrW(X509_ASN_ENCODING, &certificate.pCertInfo->Subject, CERT_X500_NAME_STR,
                          text, size);
  };
  std::wstring text(ask(nullptr, 0), L'\0');
  text.resize(ask(text.data(), static_cast<DWORD>(text.size())) - 1);
  return ToUtf8(text);
}

/// The address in the bytes of the network, 4 or 16 of them; none for a name.
std::string AddressBytes(const std::string& host) {
  std::array<char, 16> bytes;
  if (inet_pton(AF_INET, host.c_str(), bytes.data()) == 1) return {bytes.data(), 4};
  if (inet_pton(AF_INET6, host.c_str(), bytes.data()) == 1) return {bytes.data(), 16};
  return {};
}

/// Whether the certificate is for the address (RFC 5280, 4.2.1.6). The system compares names only.
bool IsForAddress(const CERT_CONTEXT& certificate, std::string_view address) {
  const CERT_EXTENSION* const extension =
      CertFindExtension(szOID_SUBJECT_ALT_NAME2, certificate.pCertInfo->cExtension,
                        certificate.pCertInfo->rgExtension);
  CERT_ALT_NAME_INFO* names = nullptr;
  DWORD size = 0;
  if (!extension || !CryptDecodeObjectEx(X509_ASN_ENCODING, X509_ALTERNATE_NAME,
                                         extension->Value.pbData, extension->Value.cbData,
                                         CRYPT_DECODE_ALLOC_FLAG, nullptr, &names, &size)) {
    return false;
  }
  bool found = false;
  for (DWORD i = 0; i < names->cAltEntry; ++i) {
    const CERT_ALT_NAME_ENTRY& entry = names->rgAltEntry[i];
    found =
        found || (entry.dwAltNameChoice == CERT_ALT_NAME_IP_ADDRESS &&
                  address == std::string_view(reinterpret_cast<const char*>(entry.IPAddress.pbData),
                                              entry.IPAddress.cbData));
  }
  LocalFree(names);
  return found;
}

/// The chain from the certificate to an authority; the server sends what lies between.
TChain ChainOf(const CERT_CONTEXT& certificate) {
  char usage[] = szOID_PKIX_KP_SERVER_AUTH;
  char* usages[] = {usage};
  CERT_CHAIN_PARA wanted{};
  wanted.cbSize = sizeof wanted;
  wanted.RequestedUsage.dwType = USAGE_MATCH_TYPE_OR;
  wanted.RequestedUsage.Usage.cUsageIdentifier = 1;
  wanted.RequestedUsage.Usage.rgpszUsageIdentifier = usages;
  PCCERT_CHAIN_CONTEXT chain = nullptr;
  CertGetCertificateChain(nullptr, &certificate, nullptr, certificate.hCertStore, &wanted, 0,
                          nullptr, &chain);
  return TChain(chain);
}

/// What the system's policy for servers says of the chain; 0 for nothing.
DWORD PolicyError(const CERT_CHAIN_CONTEXT& chain, const std::string& hostName, bool isAddress) {
  std::wstring name = ToUtf16(hostName);
  HTTPSPolicyCallbackData server{};
  server.cbStruct = sizeof server;
  server.dwAuthType = AUTHTYPE_SERVER;
  server.fdwChecks = isAddress ? 0x00001000u : 0u;  // SECURITY_FLAG_IGNORE_CERT_CN_INVALID
  server.pwszServerName = name.data();
  CERT_CHAIN_POLICY_PARA policy{};
  policy.cbSize = sizeof policy;
  policy.pvExtraPolicyPara = &server;
  CERT_CHAIN_POLICY_STATUS status{};
  status.cbSize = sizeof status;
  if (!CertVerifyCertificateChainPolicy(CERT_CHAIN_POLICY_SSL, &chain, &policy, &status)) {
    return GetLastError();
  }
  return status.dwError;
}

/// The chain's own faults, which the policy does not always tell.
DWORD TrustError(const CERT_CHAIN_CONTEXT& chain) {
  const DWORD status = chain.TrustStatus.dwErrorStatus;
  if (status & CERT_TRUST_IS_NOT_TIME_VALID) return static_cast<DWORD>(CERT_E_EXPIRED);
  if (status & (CERT_TRUST_IS_UNTRUSTED_ROOT | CERT_TRUST_IS_PARTIAL_CHAIN)) {
    return static_cast<DWORD>(CERT_E_UNTRUSTEDROOT);
  }
  // What has been revoked is not looked up, so that is not known either.
  constexpr DWORD unknown = CERT_TRUST_REVOCATION_STATUS_UNKNOWN | CERT_TRUST_IS_OFFLINE_REVOCATION;
  return (status & ~unknown) != 0 ? static_cast<DWORD>(CERT_E_CHAINING) : 0;
}

/// The system's words; Wine has none for some, which the number then stands for.
std::string Words(DWORD error) {
  switch (static_cast<HRESULT>(error)) {
    case CERT_E_EXPIRED: return "it has expired or is not valid yet";
    case CERT_E_UNTRUSTEDROOT: return "no authority that the system trusts has signed it";
    case CERT_E_CN_NO_MATCH: return "it is for another host";
    default: return SysErrorMessage(static_cast<int>(error));
  }
}

DWORD ErrorOf(const CERT_CONTEXT& certificate, const std::string& hostName) {
  const TChain chain = ChainOf(certificate);
  if (!chain) return GetLastError();
  const std::string address = AddressBytes(hostName);
  if (const DWORD error = TrustError(*chain)) return error;
  if (const DWORD error = PolicyError(*chain, hostName, !address.empty())) return error;
  const bool other = !address.empty() && !IsForAddress(certificate, address);
  return other ? static_cast<DWORD>(CERT_E_CN_NO_MATCH) : 0;
}

}  // namespace

TTlsCertificate CheckServerCertificate(const CERT_CONTEXT& certificate,
                                       const std::string& hostName) {
  const DWORD error = ErrorOf(certificate, hostName);
  return {Fingerprint(certificate), Subject(certificate), error ? Words(error) : std::string()};
}

}  // namespace vcl::os
