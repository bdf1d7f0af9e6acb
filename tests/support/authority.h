// The test's own certification authority, as one that the system trusts.
#pragma once

/// While it lives, the system trusts the authority of QEL_TLS_FOLDER/ca.pem. Elsewhere than on
/// Windows the environment says so already.
class TTrustedAuthority {
 public:
  TTrustedAuthority();
  ~TTrustedAuthority();
  TTrustedAuthority(const TTrustedAuthority&) = delete;
  TTrustedAuthority& operator=(const TTrustedAuthority&) = delete;
};
