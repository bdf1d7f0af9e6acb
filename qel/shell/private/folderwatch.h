// TFolderWatch: hearing that something in a folder has changed.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace qel {

/// Calls its call in the main thread some time after a file or folder in the folder has come, gone
/// or changed, and when the folder itself goes. Many changes in a row become one call every 200
/// milliseconds.
class TFolderWatch {
 public:
  explicit TFolderWatch(std::function<void()> changed);
  ~TFolderWatch();
  TFolderWatch(const TFolderWatch&) = delete;
  TFolderWatch& operator=(const TFolderWatch&) = delete;

  /// The folder that is watched; empty for none. Media that can be taken out are not watched, as
  /// they could not be taken out then; nor is a folder that the system cannot watch.
  void Watch(const std::string& folder);

 private:
  class TWatcher;
  std::function<void()> FChanged;
  std::unique_ptr<TWatcher> FWatcher;
};

}  // namespace qel
