// The types of files that the registry knows.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "qel/mail/private/mimetypes.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/registry.h"

namespace qel {

std::string RegisteredMimeType(const std::string& extension) {
  if (extension.empty()) return {};
  vcl::TRegistry registry;
  registry.SetRootKey(HKEY_CLASSES_ROOT);
  try {
    return registry.OpenKeyReadOnly(extension) ? registry.ReadString("Content Type")
                                               : std::string();
  } catch (const vcl::Exception&) {
    return {};  // A value that is no text says nothing of the type.
  }
}

}  // namespace qel
