// TLS by the system's Schannel (SSPI): the handshake and the records.
#include "vcl/net/private/socketcalls_win32.h"
// They need what stands above.
#define SECURITY_WIN32
#define SCHANNEL_USE_BLACKLISTS
#include <subauth.h>
// clang-format off
#include <security.h>
#include <schannel.h>
// clang-format on

#include <algorithm>
#include <array>
#include <vector>

#include "vcl/net/private/tlscertificate_win32.h"
#include "vcl/net/private/tlsengine.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl::os {
namespace {

constexpr unsigned long Wanted = ISC_REQ_SEQUENCE_DETECT | ISC_REQ_REPLAY_DETECT |
                                 ISC_REQ_CONFIDENTIALITY | ISC_REQ_ALLOCATE_MEMORY |
                                 ISC_REQ_STREAM | ISC_REQ_MANUAL_CRED_VALIDATION;
/// The certificate is looked at here, and the user's own ones are sent to nobody.
constexpr unsigned long CredentialFlags =
    SCH_CRED_MANUAL_CRED_VALIDATION | SCH_CRED_NO_DEFAULT_CREDS | SCH_USE_STRONG_CRYPTO;

[[noreturn]] void Raise(const char* doing, SECURITY_STATUS status) {
  throw ETlsError(Concat("Cannot ", doing, ": ", SysErrorMessage(static_cast<int>(status))),
                  static_cast<int>(status));
}

/// The buffer of a kind among those that a call has filled; null for none.
SecBuffer* Find(std::array<SecBuffer, 4>& buffers, unsigned long kind) {
  const auto found = std::ranges::find(buffers, kind, &SecBuffer::BufferType);
  return found == buffers.end() ? nullptr : &*found;
}

std::string_view Bytes(const SecBuffer& buffer) {
  return {static_cast<const char*>(buffer.pvBuffer), buffer.cbBuffer};
}

class TSchannelEngine : public TTlsEngine {
 public:
  explicit TSchannelEngine(const std::string& hostName);
  ~TSchannelEngine() override;
  bool ShakeHands(std::string& received, std::string& toSend) override;
  TTlsCertificate CheckCertificate() override;
  void Encrypt(std::string_view plain, std::string& toSend) override;
  bool Decrypt(std::string& received, std::string& plain, std::string& toSend) override;
  void SayGoodbye(std::string& toSend) override;
  std::string Version() const override;

 private:
  unsigned long Protocol() const;
  void CheckProtocol() const;
  bool AcquireNewest();
  void AcquireOlder();
  SECURITY_STATUS Step(SecBufferDesc* input, std::string& toSend);

  std::string FHostName;
  std::wstring FTarget;
  CredHandle FCredentials{};
  CtxtHandle FContext{};
  bool FBegun = false, FShaken = false;
  unsigned long FFlags = Wanted;
  SecPkgContext_StreamSizes FSizes{};
};

TSchannelEngine::TSchannelEngine(const std::string& hostName)
    : FHostName(hostName), FTarget(ToUtf16(hostName)) {
  if (!AcquireNewest()) AcquireOlder();
}

TSchannelEngine::~TSchannelEngine() {
  if (FBegun) DeleteSecurityContext(&FContext);
  FreeCredentialsHandle(&FCredentials);
}

/// With the record that knows of TLS 1.3; older systems refuse it.
bool TSchannelEngine::AcquireNewest() {
  TLS_PARAMETERS parameters{};
  parameters.grbitDisabledProtocols = SP_PROT_SSL2 | SP_PROT_SSL3 | SP_PROT_TLS1_0 | SP_PROT_TLS1_1;
  SCH_CREDENTIALS wanted{};
  wanted.dwVersion = SCH_CREDENTIALS_VERSION;
  wanted.dwFlags = CredentialFlags;
  wanted.cTlsParameters = 1;
  wanted.pTlsParameters = &parameters;
  return AcquireCredentialsHandleW(nullptr, const_cast<wchar_t*>(UNISP_NAME_W),
                                   SECPKG_CRED_OUTBOUND, nullptr, &wanted, nullptr, nullptr,
                                   &FCredentials, nullptr) == SEC_E_OK;
}

void TSchannelEngine::AcquireOlder() {
  SCHANNEL_CRED wanted{};
  wanted.dwVersion = SCHANNEL_CRED_VERSION;
  wanted.grbitEnabledProtocols = SP_PROT_TLS1_2_CLIENT;
  wanted.dwFlags = CredentialFlags;
  const SECURITY_STATUS status =
      AcquireCredentialsHandleW(nullptr, const_cast<wchar_t*>(UNISP_NAME_W), SECPKG_CRED_OUTBOUND,
                                nullptr, &wanted, nullptr, nullptr, &FCredentials, nullptr);
  if (status != SEC_E_OK) Raise("use the system's transport security", status);
}

SECURITY_STATUS TSchannelEngine::Step(SecBufferDesc* input, std::string& toSend) {
  SecBuffer output{0, SECBUFFER_TOKEN, nullptr};
  SecBufferDesc outputs{SECBUFFER_VERSION, 1, &output};
  unsigned long attributes = 0;
  const SECURITY_STATUS status = InitializeSecurityContextW(
      &FCredentials, FBegun ? &FContext : nullptr, FTarget.data(), FFlags, 0, 0, input, 0,
      FBegun ? nullptr : &FContext, &outputs, &attributes, nullptr);
  FBegun = FBegun || status == SEC_E_OK || status == SEC_I_CONTINUE_NEEDED;
  if (output.pvBuffer) {
    toSend.append(Bytes(output));
    FreeContextBuffer(output.pvBuffer);
  }
  return status;
}

bool TSchannelEngine::ShakeHands(std::string& received, std::string& toSend) {
  constexpr const char* doing = "secure the connection";
  if (!FBegun) {
    const SECURITY_STATUS status = Step(nullptr, toSend);
    if (status != SEC_I_CONTINUE_NEEDED) Raise(doing, status);
  }
  while (!received.empty()) {
    std::array<SecBuffer, 4> input{
        {{static_cast<unsigned long>(received.size()), SECBUFFER_TOKEN, received.data()}}};
    SecBufferDesc inputs{SECBUFFER_VERSION, 2, input.data()};
    const SECURITY_STATUS status = Step(&inputs, toSend);
    if (status == SEC_E_INCOMPLETE_MESSAGE) return false;
    if (status == SEC_I_INCOMPLETE_CREDENTIALS) {
      // The server would like a certificate of the user's: it goes on without one.
      FFlags |= ISC_REQ_USE_SUPPLIED_CREDS;
      continue;
    }
    if (status != SEC_E_OK && status != SEC_I_CONTINUE_NEEDED) Raise(doing, status);
    const SecBuffer* const extra = Find(input, SECBUFFER_EXTRA);
    received.erase(0, received.size() - (extra ? extra->cbBuffer : 0));
    if (status == SEC_E_OK) {
      const SECURITY_STATUS asked =
          QueryContextAttributesW(&FContext, SECPKG_ATTR_STREAM_SIZES, &FSizes);
      if (asked != SEC_E_OK) Raise(doing, asked);
      CheckProtocol();
      return FShaken = true;
    }
  }
  return false;
}

/// Not every system keeps to the protocols that it was asked for.
void TSchannelEngine::CheckProtocol() const {
  if ((Protocol() & (SP_PROT_TLS1_2_CLIENT | SP_PROT_TLS1_3_CLIENT)) != 0) return;
  throw ETlsError(Concat("\"", FHostName, "\" speaks no TLS of version 1.2 or newer"));
}

TTlsCertificate TSchannelEngine::CheckCertificate() {
  PCCERT_CONTEXT certificate = nullptr;
  const SECURITY_STATUS status =
      QueryContextAttributesW(&FContext, SECPKG_ATTR_REMOTE_CERT_CONTEXT, &certificate);
  if (status != SEC_E_OK || !certificate) return {{}, {}, "the server has none"};
  const TOwnedCertificate owned(certificate);
  return CheckServerCertificate(*certificate, FHostName);
}

void TSchannelEngine::Encrypt(std::string_view plain, std::string& toSend) {
  std::vector<char> record;
  for (; !plain.empty();
       plain.remove_prefix(std::min<std::size_t>(plain.size(), FSizes.cbMaximumMessage))) {
    const auto size =
        std::min<unsigned long>(static_cast<unsigned long>(plain.size()), FSizes.cbMaximumMessage);
    record.resize(FSizes.cbHeader + size + FSizes.cbTrailer);
    std::ranges::copy(plain.substr(0, size), record.begin() + FSizes.cbHeader);
    std::array<SecBuffer, 4> buffers{
        {{FSizes.cbHeader, SECBUFFER_STREAM_HEADER, record.data()},
         {size, SECBUFFER_DATA, record.data() + FSizes.cbHeader},
         {FSizes.cbTrailer, SECBUFFER_STREAM_TRAILER, record.data() + FSizes.cbHeader + size},
         {0, SECBUFFER_EMPTY, nullptr}}};
    SecBufferDesc message{SECBUFFER_VERSION, 4, buffers.data()};
    const SECURITY_STATUS status = EncryptMessage(&FContext, 0, &message, 0);
    if (status != SEC_E_OK) Raise("send over the secured connection", status);
    for (std::size_t i = 0; i < 3; ++i) toSend.append(Bytes(buffers[i]));
  }
}

bool TSchannelEngine::Decrypt(std::string& received, std::string& plain, std::string& toSend) {
  while (!received.empty()) {
    if (!FShaken) {
      // The peer has asked for another handshake, or, since TLS 1.3, has something to say of it.
      if (!ShakeHands(received, toSend)) return true;
      continue;
    }
    std::array<SecBuffer, 4> buffers{
        {{static_cast<unsigned long>(received.size()), SECBUFFER_DATA, received.data()}}};
    SecBufferDesc message{SECBUFFER_VERSION, 4, buffers.data()};
    const SECURITY_STATUS status = DecryptMessage(&FContext, &message, 0, nullptr);
    if (status == SEC_E_INCOMPLETE_MESSAGE) return true;
    if (status == SEC_I_CONTEXT_EXPIRED) return false;
    if (status != SEC_E_OK && status != SEC_I_RENEGOTIATE) {
      Raise("receive over the secured connection", status);
    }
    if (const SecBuffer* const data = Find(buffers, SECBUFFER_DATA)) plain.append(Bytes(*data));
    const SecBuffer* const extra = Find(buffers, SECBUFFER_EXTRA);
    received.erase(0, received.size() - (extra ? extra->cbBuffer : 0));
    FShaken = status == SEC_E_OK;
  }
  return true;
}

void TSchannelEngine::SayGoodbye(std::string& toSend) {
  if (!FBegun) return;
  unsigned long shutDown = SCHANNEL_SHUTDOWN;
  SecBuffer token{sizeof shutDown, SECBUFFER_TOKEN, &shutDown};
  SecBufferDesc tokens{SECBUFFER_VERSION, 1, &token};
  if (ApplyControlToken(&FContext, &tokens) == SEC_E_OK) Step(nullptr, toSend);
}

unsigned long TSchannelEngine::Protocol() const {
  SecPkgContext_ConnectionInfo information{};
  // The call does not change the context that it asks.
  QueryContextAttributesW(const_cast<CtxtHandle*>(&FContext), SECPKG_ATTR_CONNECTION_INFO,
                          &information);
  return information.dwProtocol;
}

std::string TSchannelEngine::Version() const {
  return (Protocol() & SP_PROT_TLS1_3_CLIENT) != 0 ? "TLSv1.3" : "TLSv1.2";
}

}  // namespace

std::unique_ptr<TTlsEngine> NewTlsEngine(const std::string& hostName) {
  return std::make_unique<TSchannelEngine>(hostName);
}

}  // namespace vcl::os
