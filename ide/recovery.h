// TRecovery: which forms this run of the designer keeps unsaved copies of, so that the next run can
// offer them when this one is killed.
#pragma once

#include <string>
#include <vector>

#include "ide/settings.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/win32.h"

namespace ide {

/// Each run has a section of its own in the settings and holds a mutex of that name, which the
/// system frees with the process: a section without its mutex is one of a run that was killed.
/// Several runs at once don't meddle with each other.
class TRecovery {
 public:
  /// The settings must outlive it.
  explicit TRecovery(const TSettings& settings);
  /// The run has ended in good order.
  ~TRecovery();
  TRecovery(const TRecovery&) = delete;
  TRecovery& operator=(const TRecovery&) = delete;

  /// A name beside the settings for the copy of a form that has no file.
  std::string NewName();
  /// The names of the files that there are copies of.
  void SetFiles(const std::vector<std::string>& files);
  /// The files that killed runs left copies of. Those runs are forgotten then.
  std::vector<std::string> TakeLost() const;

 private:
  const TSettings& FSettings;
  const std::string FRun;
  const vcl::TOwned<HANDLE, &::CloseHandle> FAlive;
  std::vector<std::string> FFiles;
  int FCount = 0;
};

}  // namespace ide
