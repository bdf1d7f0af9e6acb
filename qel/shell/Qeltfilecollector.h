// TQELFileCollector: the files below a folder that are of some kind.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "qel/core/Qelactioncomponent.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/sets.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// What a file may be.
enum TQELFileAttribute { faReadOnly, faHidden, faSystem, faArchive };
using TQELFileAttributes = vcl::TSet<TQELFileAttribute>;

/// Sender, the file, whether it is taken.
using TQELCollectFileEvent = vcl::TEvent<vcl::TObject*, const std::string&, bool&>;
/// Sender, the folder that is being read, how many files have been found, whether to end.
using TQELCollectProgressEvent = vcl::TEvent<vcl::TObject*, const std::string&, int, bool&>;

/// Collects the names of the files in a folder, and in those below it. It works in the caller's
/// thread, lets the application handle messages meanwhile, and can be ended. A folder that cannot
/// be read is left out, and told by LastError. Links to folders are not followed, unless
/// FollowLinks says so, and then none that leads to a folder which holds it.
class QEL_API TQELFileCollector : public TQELActionComponent {
 public:
  explicit TQELFileCollector(vcl::TComponent* owner);
  ~TQELFileCollector() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the last Execute has found, with the folders; in a folder in the order of the user's
  /// language, its files before those of the folders in it.
  const vcl::TStrings* Files() const { return FFiles.get(); }
  /// Ends the search that is under way; Execute says false then.
  void Abort() { FAborted = true; }
  bool Aborted() const { return FAborted; }
  /// From Execute on until it returns.
  bool Busy() const { return FBusy; }

  TQELFileAttributes Attributes() const { return FAttributes; }
  /// Which attributes a file may have; one with another one is left out, as is a folder.
  void SetAttributes(TQELFileAttributes attributes) { FAttributes = attributes; }
  const std::string& Folder() const { return FFolder; }
  /// Where it begins.
  void SetFolder(const std::string& folder) { FFolder = folder; }
  bool FollowLinks() const { return FFollowLinks; }
  /// True: links to folders are followed.
  void SetFollowLinks(bool follow) { FFollowLinks = follow; }
  const std::string& Masks() const { return FMasks; }
  /// Masks of the files' names, such as "*.txt;*.md"; empty for all.
  void SetMasks(const std::string& masks) { FMasks = masks; }
  std::int64_t MaxSize() const { return FMaxSize; }
  /// How large a file may be, in bytes; 0 for any size.
  void SetMaxSize(std::int64_t bytes) { FMaxSize = bytes; }
  std::int64_t MinSize() const { return FMinSize; }
  /// How large a file must be, in bytes.
  void SetMinSize(std::int64_t bytes) { FMinSize = bytes; }
  vcl::TDateTime NewerThan() const { return FNewerThan; }
  /// Files that were last written to then or later, by the clock on the wall; 0 for all.
  void SetNewerThan(vcl::TDateTime time) { FNewerThan = time; }
  vcl::TDateTime OlderThan() const { return FOlderThan; }
  /// Files that were last written to before that; 0 for all.
  void SetOlderThan(vcl::TDateTime time) { FOlderThan = time; }
  bool Recursive() const { return FRecursive; }
  /// True: the folders below are searched, too.
  void SetRecursive(bool recursive) { FRecursive = recursive; }

  /// A file has been found, which the handler may refuse.
  TQELCollectFileEvent OnFile;
  /// A folder is about to be read.
  TQELCollectProgressEvent OnProgress;

 protected:
  bool DoExecute() override;
  std::string DesignText() const override;

 private:
  class TSearch;
  std::unique_ptr<vcl::TStringList> FFiles;
  TQELFileAttributes FAttributes{faReadOnly, faHidden, faSystem, faArchive};
  std::string FFolder;
  std::string FMasks;
  std::int64_t FMaxSize = 0;
  std::int64_t FMinSize = 0;
  vcl::TDateTime FNewerThan = 0;
  vcl::TDateTime FOlderThan = 0;
  bool FFollowLinks = false;
  bool FRecursive = true;
  bool FAborted = false;
  bool FBusy = false;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELFileAttribute>{
    "TQELFileAttribute", "faReadOnly faHidden faSystem faArchive", "TQELFileAttributes"};
