// TOutbox: the files that go out with a mail, together in one folder.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace mailer {

/// Copies the files into a folder of its own, which is the program's current one as long as this
/// lives: so they are sent under their names alone, whatever folders they come from. Raises
/// EInOutError, for two files of one name, too, and leaves nothing behind.
class TOutbox {
 public:
  explicit TOutbox(const std::vector<std::string>& files);
  ~TOutbox();
  TOutbox(const TOutbox&) = delete;
  TOutbox& operator=(const TOutbox&) = delete;

 private:
  void CopyHere(const std::string& file) const;
  void Enter() const;
  void Clear() const;

  std::filesystem::path FFormer, FFolder;
};

}  // namespace mailer
