// Files dropped by the shell, for tests of what takes them.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "vcl/rtl/win32.h"
#include "vcl/transfer/dataobject.h"
// It needs what stands above.
#include <shellapi.h>
#include <shlobj.h>

#include "vcl/rtl/systemmacros.h"

namespace testinput {

/// What WM_DROPFILES brings: the files, dropped at the place in the window.
inline HDROP MakeDrop(const std::vector<std::string>& names, POINT place) {
  vcl::TDataObject data;
  data.SetFiles(names);
  std::string bytes = *data.Bytes(vcl::tfFiles);
  DROPFILES head{};
  std::copy_n(bytes.data(), sizeof head, reinterpret_cast<char*>(&head));
  head.pt = place;
  std::copy_n(reinterpret_cast<const char*>(&head), sizeof head, bytes.data());
  const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  std::copy(bytes.begin(), bytes.end(), static_cast<char*>(::GlobalLock(block)));
  ::GlobalUnlock(block);
  return static_cast<HDROP>(block);
}

}  // namespace testinput
