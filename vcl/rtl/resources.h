// Resources of an executable or DLL, as streams. Windows only.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/streams.h"

namespace vcl {

/// Reads a resource where it lies.
class VCL_API TResourceStream : public TCustomMemoryStream {
 public:
  /// Opens the resource of the module (null: the executable). The type is a name or a number's
  /// pseudo-pointer such as RT_RCDATA. Raises EResNotFound with the name.
  TResourceStream(void* module, const std::string& name, const char* type);
  /// Resources cannot be written: nothing is, so that WriteBuffer raises EWriteError.
  std::int64_t Write(const void*, std::int64_t) override { return 0; }

 protected:
  std::string_view Bytes() const override { return FBytes; }

 private:
  std::string_view FBytes;
};

/// True when the module (null: the executable) has the resource.
VCL_API bool ResourceExists(void* module, const std::string& name, const char* type);

}  // namespace vcl
