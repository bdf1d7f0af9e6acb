// TQELFileOperator: files and folders copied, moved, deleted and renamed.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelactioncomponent.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/sets.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// What is done to the files.
enum TQELFileOperatorOperation { foCopy, foMove, foDelete, foRename };
/// How it is done.
enum TQELFileOperatorOption {
  foAllowUndo,         ///< What is deleted goes to the recycle bin.
  foNoConfirmation,    ///< Nobody is asked: what is there already is replaced.
  foSilent,            ///< No progress is shown.
  foFilesOnly,         ///< Folders among the sources are left out.
  foRenameOnCollision  ///< A name that is taken is not asked about: another one is given.
};
using TQELFileOperatorOptions = vcl::TSet<TQELFileOperatorOption>;
/// What becomes of a file whose name is taken.
enum TQELFileConflict { fcReplace, fcSkip, fcRename, fcAbort };
/// What becomes of a file with which something went wrong.
enum TQELFileFailure { ffAbort, ffSkip, ffRetry };

/// Sender, the file, the one that is there, what is to be done.
using TQELFileConflictEvent =
    vcl::TEvent<vcl::TObject*, const std::string&, const std::string&, TQELFileConflict&>;
/// Sender, the file, what has happened, what is to be done.
using TQELFileErrorEvent =
    vcl::TEvent<vcl::TObject*, const std::string&, const std::string&, TQELFileFailure&>;
/// Sender, the file in hand, how many percent are done, whether to end.
using TQELFileProgressEvent = vcl::TEvent<vcl::TObject*, const std::string&, int, bool&>;

/// Copies, moves and deletes files and trees of folders, and renames one. No file is ever there by
/// halves: a copy takes its name when it is whole, and what it replaces or was moved from goes
/// after that. Links to folders are deleted as links. The shell does what concerns the recycle bin,
/// and renames.
///
/// Execute works in the caller's thread, lets the application handle messages meanwhile, and can be
/// ended by its window, by OnProgress and by Abort. The user is asked about names that are taken
/// and about errors, unless the events say. In the designer it tells what it would do.
class QEL_API TQELFileOperator : public TQELActionComponent {
 public:
  explicit TQELFileOperator(vcl::TComponent* owner);
  ~TQELFileOperator() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Ends the operation that is under way, at the next step.
  void Abort() { FAborted = true; }
  /// Whether the last operation was ended before it was done.
  bool Aborted() const { return FAborted; }
  /// From Execute on until it returns.
  bool Busy() const { return FBusy; }

  const std::string& Destination() const { return FDestination; }
  /// The folder that files go to, or the new name of foRename.
  void SetDestination(const std::string& destination) { FDestination = destination; }
  TQELFileOperatorOperation Operation() const { return FOperation; }
  /// What Execute does.
  void SetOperation(TQELFileOperatorOperation operation) { FOperation = operation; }
  TQELFileOperatorOptions Options() const { return FOptions; }
  /// How it does that.
  void SetOptions(TQELFileOperatorOptions options) { FOptions = options; }
  const std::string& ProgressTitle() const { return FProgressTitle; }
  /// The title of the window that shows the progress; empty for the operation's own.
  void SetProgressTitle(const std::string& title) { FProgressTitle = title; }
  vcl::TStrings* Source() const { return FSource.get(); }
  /// The files and folders, one a line; the last part of a name may be a mask.
  void SetSource(const vcl::TStrings* source) { FSource->Assign(source); }

  /// A name is taken.
  TQELFileConflictEvent OnConflict;
  /// Something went wrong with a file.
  TQELFileErrorEvent OnError;
  /// How far it is; at every file, and now and then while one is copied.
  TQELFileProgressEvent OnProgress;

 protected:
  bool DoExecute() override;
  std::string DesignText() const override;

 private:
  class TRun;
  std::vector<std::string> Sources() const;
  bool MayDelete(const std::vector<std::string>& sources);
  bool Rename(const std::vector<std::string>& sources) const;
  std::string Title() const;

  std::string FDestination;
  TQELFileOperatorOperation FOperation = foCopy;
  TQELFileOperatorOptions FOptions{foAllowUndo};
  std::string FProgressTitle;
  std::unique_ptr<vcl::TStringList> FSource;
  bool FAborted = false;
  bool FBusy = false;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELFileOperatorOperation>{
    "TQELFileOperatorOperation", "foCopy foMove foDelete foRename"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELFileOperatorOption>{
    "TQELFileOperatorOption",
    "foAllowUndo foNoConfirmation foSilent foFilesOnly foRenameOnCollision",
    "TQELFileOperatorOptions"};
