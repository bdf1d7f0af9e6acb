// The tool that saves the open forms in their files by itself.
#pragma once

#include "vcl/designintf/environment.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

class TQELAutoSave {
 public:
  /// The environment must outlive it.
  explicit TQELAutoSave(vcl::TEnvironment& environment);

  int Minutes() const { return FMinutes; }
  /// Saves every so many minutes, counted from now; 0 for never.
  void SetMinutes(int minutes);
  /// Lets the user choose in a form; true when he has chosen.
  bool Choose();

 private:
  vcl::TTimer FTimer{nullptr};
  int FMinutes = 0;
};

}  // namespace qel
