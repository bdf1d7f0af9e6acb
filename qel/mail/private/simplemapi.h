// Simple MAPI, the mail interface that the system offers to programs: its library, loaded when it
// is needed. Its records and entry points are those of Microsoft's published header mapi.h.
//
// Texts in the records are narrow, in the code page of the process. Programs declare UTF-8 as
// theirs in the manifest, so texts go into the records and come out of them as they are.
//
// Include it last: the system's headers rename methods that are declared after them.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
// It needs what stands above.
#include <mapi.h>

#include <memory>
#include <string>

namespace qel {

/// True when the system says that it has MAPI.
bool MapiIsInstalled();

/// The system's library "mapi32", loaded while somebody holds it.
class TMapiLibrary {
 public:
  /// The one that is loaded already, else a new one; null when the system can't load it.
  static std::shared_ptr<const TMapiLibrary> Open();
  ~TMapiLibrary();
  TMapiLibrary(const TMapiLibrary&) = delete;
  TMapiLibrary& operator=(const TMapiLibrary&) = delete;

  /// False when the library lacks one of the ten entry points of the interface.
  bool Complete() const { return FComplete; }

  // These are null when the library lacks them.
  LPMAPILOGON Logon = nullptr;
  LPMAPILOGOFF Logoff = nullptr;
  LPMAPISENDMAIL SendMail = nullptr;
  LPMAPIRESOLVENAME ResolveName = nullptr;
  LPMAPIFREEBUFFER FreeBuffer = nullptr;

 private:
  explicit TMapiLibrary(HMODULE library);
  template <class TheEntry>
  void Resolve(TheEntry& entry, const char* name);

  HMODULE FLibrary;
  bool FComplete = true;
};

/// A text as the records hold it: what is called may write into it, but no longer one.
inline LPSTR MapiText(std::string& text) { return text.data(); }

}  // namespace qel
