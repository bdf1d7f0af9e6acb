// The pointer while something takes its time.
#pragma once

#include "vcl/forms/screen.h"

namespace qel {

/// While it lives, the pointer is an hourglass.
class THourGlass {
 public:
  THourGlass() : FFormer(vcl::Screen()->Cursor()) { vcl::Screen()->SetCursor(vcl::crHourGlass); }
  ~THourGlass() { vcl::Screen()->SetCursor(FFormer); }
  THourGlass(const THourGlass&) = delete;
  THourGlass& operator=(const THourGlass&) = delete;

 private:
  vcl::TCursor FFormer;
};

}  // namespace qel
