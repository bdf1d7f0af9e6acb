// TLS by OpenSSL, between two buffers in memory.
#include <openssl/err.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>

#include <array>

#include "vcl/net/private/tlsengine.h"
#include "vcl/rtl/text.h"

namespace vcl::os {
namespace {

struct TFree {
  void operator()(SSL_CTX* context) const { SSL_CTX_free(context); }
  void operator()(SSL* connection) const { SSL_free(connection); }
  void operator()(X509* certificate) const { X509_free(certificate); }
  void operator()(ASN1_OCTET_STRING* address) const { ASN1_OCTET_STRING_free(address); }
};
template <class T>
using TOwned = std::unique_ptr<T, TFree>;

/// The library's words for what went wrong last.
std::string LastReason() {
  const char* reason = ERR_reason_error_string(ERR_peek_error());
  ERR_clear_error();
  return reason ? reason : "it ended too early";
}

[[noreturn]] void Raise(const char* doing) {
  throw ETlsError(Concat("Cannot ", doing, ": ", LastReason()));
}

bool IsAddress(const std::string& host) {
  return TOwned<ASN1_OCTET_STRING>(a2i_IPADDRESS(host.c_str())) != nullptr;
}

class TOpenSslEngine : public TTlsEngine {
 public:
  explicit TOpenSslEngine(const std::string& hostName);
  bool ShakeHands(std::string& received, std::string& toSend) override;
  TTlsCertificate CheckCertificate() override;
  void Encrypt(std::string_view plain, std::string& toSend) override;
  bool Decrypt(std::string& received, std::string& plain, std::string& toSend) override;
  void SayGoodbye(std::string& toSend) override;
  std::string Version() const override { return SSL_get_version(FConnection.get()); }

 private:
  void Feed(std::string& received);
  void Drain(std::string& toSend);

  TOwned<SSL_CTX> FContext;
  TOwned<SSL> FConnection;
  // The connection's own.
  BIO* FReceived = BIO_new(BIO_s_mem());
  BIO* FToSend = BIO_new(BIO_s_mem());
};

TOpenSslEngine::TOpenSslEngine(const std::string& hostName)
    : FContext(SSL_CTX_new(TLS_client_method())), FConnection(SSL_new(FContext.get())) {
  SSL* const connection = FConnection.get();
  SSL_set_bio(connection, FReceived, FToSend);
  SSL_set_connect_state(connection);
  // Nothing that has not come yet is the end.
  BIO_set_mem_eof_return(FReceived, -1);
  SSL_CTX_set_default_verify_paths(FContext.get());
  SSL_set_min_proto_version(connection, TLS1_2_VERSION);
  SSL_set_options(connection, SSL_OP_NO_RENEGOTIATION | SSL_OP_NO_COMPRESSION);
  // The handshake does not end at a certificate that is refused: what it is is looked at behind it.
  SSL_set_verify(connection, SSL_VERIFY_NONE, nullptr);
  if (IsAddress(hostName)) {
    X509_VERIFY_PARAM_set1_ip_asc(SSL_get0_param(connection), hostName.c_str());
  } else {
    // What SSL_set_tlsext_host_name does, which casts as C does.
    SSL_ctrl(connection, SSL_CTRL_SET_TLSEXT_HOSTNAME, TLSEXT_NAMETYPE_host_name,
             const_cast<char*>(hostName.c_str()));
    SSL_set_hostflags(connection, X509_CHECK_FLAG_NO_PARTIAL_WILDCARDS);
    if (SSL_set1_host(connection, hostName.c_str()) != 1) Raise("check the server's name");
  }
}

void TOpenSslEngine::Feed(std::string& received) {
  BIO_write(FReceived, received.data(), static_cast<int>(received.size()));
  received.clear();
}

void TOpenSslEngine::Drain(std::string& toSend) {
  char* bytes = nullptr;
  const long count = BIO_get_mem_data(FToSend, &bytes);
  if (count > 0) toSend.append(bytes, static_cast<std::size_t>(count));
  BIO_reset(FToSend);
}

bool TOpenSslEngine::ShakeHands(std::string& received, std::string& toSend) {
  Feed(received);
  ERR_clear_error();
  const int result = SSL_do_handshake(FConnection.get());
  const int error = SSL_get_error(FConnection.get(), result);
  Drain(toSend);
  if (result != 1 && error != SSL_ERROR_WANT_READ) Raise("secure the connection");
  return result == 1;
}

TTlsCertificate TOpenSslEngine::CheckCertificate() {
  const TOwned<X509> certificate(SSL_get1_peer_certificate(FConnection.get()));
  if (!certificate) return {{}, {}, "the server has none"};
  TTlsCertificate found;
  std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
  unsigned size = 0;
  X509_digest(certificate.get(), EVP_sha256(), digest.data(), &size);
  found.Fingerprint = FingerprintText(digest.data(), size);
  char* const subject = X509_NAME_oneline(X509_get_subject_name(certificate.get()), nullptr, 0);
  found.Subject = subject ? subject : "";
  OPENSSL_free(subject);
  const long result = SSL_get_verify_result(FConnection.get());
  if (result != X509_V_OK) found.Problem = X509_verify_cert_error_string(result);
  return found;
}

void TOpenSslEngine::Encrypt(std::string_view plain, std::string& toSend) {
  ERR_clear_error();
  if (!plain.empty() &&
      SSL_write(FConnection.get(), plain.data(), static_cast<int>(plain.size())) <= 0) {
    Raise("send over the secured connection");
  }
  Drain(toSend);
}

bool TOpenSslEngine::Decrypt(std::string& received, std::string& plain, std::string& toSend) {
  Feed(received);
  std::array<char, 16384> chunk;
  for (;;) {
    ERR_clear_error();
    const int count = SSL_read(FConnection.get(), chunk.data(), static_cast<int>(chunk.size()));
    if (count > 0) {
      plain.append(chunk.data(), static_cast<std::size_t>(count));
      continue;
    }
    const int error = SSL_get_error(FConnection.get(), count);
    Drain(toSend);
    if (error == SSL_ERROR_WANT_READ) return true;
    if (error == SSL_ERROR_ZERO_RETURN) return false;
    Raise("receive over the secured connection");
  }
}

void TOpenSslEngine::SayGoodbye(std::string& toSend) {
  SSL_shutdown(FConnection.get());
  ERR_clear_error();
  Drain(toSend);
}

}  // namespace

std::unique_ptr<TTlsEngine> NewTlsEngine(const std::string& hostName) {
  return std::make_unique<TOpenSslEngine>(hostName);
}

}  // namespace vcl::os
