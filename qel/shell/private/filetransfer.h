// TFileTransfer: files and folders copied, moved and deleted, none of them ever by halves.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "qel/core/Qelactioncomponent.h"
#include "qel/shell/private/folders.h"

namespace qel {

/// What is to become of a file whose name is taken.
enum class TNameTaken {
  Replace,  ///< The other file's contents give way; a folder's are joined.
  Skip,
  Rename,  ///< It gets another name.
  Abort
};
/// What is to become of a file with which something went wrong.
enum class TFailed { Retry, Skip, Abort };

/// Who is asked and told. None may be null.
struct TTransferAsks {
  std::function<TNameTaken(const std::string& source, const std::string& target)> Taken;
  std::function<TFailed(const std::string& path, const EQELSystemError& error)> Failed;
  /// The file that is being worked on, and how much of all bytes is done; false ends the work.
  std::function<bool(const std::string& path, double done)> Going;
};

/// Copies, moves and deletes files and trees of folders. A file appears under its name when it is
/// whole and on the disk: until then it is "NAME.~new" beside it, and the one that it replaces is
/// there. What is moved to another drive is deleted when it has arrived. Attributes, times and the
/// system's further streams go along. Links to folders are copied as what they lead to, unless that
/// holds them, and deleted as links: what they lead to is never touched. Names may be longer than
/// 260 characters and end with a dot or a blank.
class TFileTransfer {
 public:
  explicit TFileTransfer(TTransferAsks asks) : FAsks(std::move(asks)) {}

  /// Copies resp. moves files and folders into the folder, which is made where it is not there.
  /// False when the work was ended. Raises EQELSystemError for a folder that is to go into itself.
  bool Transfer(const std::vector<std::string>& sources, const std::string& folder, bool move);
  /// Deletes files and folders for good.
  bool Delete(const std::vector<std::string>& sources);

 private:
  struct TAborted {};
  using TId = std::pair<std::uint32_t, std::uint64_t>;
  template <class Work>
  bool Run(const std::vector<std::string>& sources, Work work);
  template <class Step>
  bool Try(const std::string& path, Step step);
  void Go(const std::string& path, double ofFile = 0);
  void Measure(const std::string& path, std::vector<TId>& above);
  void Put(const std::string& source, std::string target, bool move);
  void PutFolder(const std::string& source, const std::string& target, bool move);
  void PutFile(const std::string& source, const std::string& target, bool move);
  void CopyWhole(const std::string& source, const std::string& target);
  void Remove(const std::string& path);
  bool Resolve(const std::string& source, std::string& target);

  TTransferAsks FAsks;
  std::vector<TId> FAbove;  // The folders that are being copied, from the outermost on.
  std::uint64_t FTotal = 0, FDone = 0, FSize = 0;  // In bytes; of the file in hand.
};

}  // namespace qel
