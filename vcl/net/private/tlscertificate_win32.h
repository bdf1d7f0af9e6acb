// A server's certificate, looked at by the system.
#pragma once

#include <memory>
#include <string>

#include "vcl/net/private/socketcalls_win32.h"
#include "vcl/net/tls.h"
// It needs what stands above.
#include <wincrypt.h>

namespace vcl::os {

struct TFreeCertificate {
  void operator()(const CERT_CONTEXT* certificate) const {
    CertFreeCertificateContext(certificate);
  }
};
using TOwnedCertificate = std::unique_ptr<const CERT_CONTEXT, TFreeCertificate>;

/// What is to be said of it; its Problem is empty when it leads to an authority that the system
/// trusts, is valid today and is for the host, a name or an address in digits.
TTlsCertificate CheckServerCertificate(const CERT_CONTEXT& certificate,
                                       const std::string& hostName);

}  // namespace vcl::os
