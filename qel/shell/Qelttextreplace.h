// TQELTextReplace: texts found and replaced in files.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelactioncomponent.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/sets.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// How a text is looked for.
enum TQELTextReplaceOption {
  roMatchCase,         ///< Capitals and small letters differ.
  roWholeWords,        ///< What stands in the middle of a word does not count.
  roRegularExpression  ///< Find is a pattern, and ReplaceBy may name its groups: $0 to $9.
};
using TQELTextReplaceOptions = vcl::TSet<TQELTextReplaceOption>;
/// What becomes of a hit: replaced; left; replaced, and all further ones without asking; left, and
/// the work ended with its file as it was.
enum TQELReplaceAction { raReplace, raSkip, raAll, raStop };

/// Sender, the file, the hit's line from 1, the text that is found, what it is replaced by, what is
/// to be done.
using TQELReplaceEvent = vcl::TEvent<vcl::TObject*, const std::string&, int, const std::string&,
                                     std::string&, TQELReplaceAction&>;
/// Sender, the file, how many percent of the files are done, whether to end.
using TQELReplaceProgressEvent = vcl::TEvent<vcl::TObject*, const std::string&, int, bool&>;

/// Replaces texts in files. UTF-8, UTF-16 with a mark and the system's code page are read and
/// written as they are, with their line ends; files that are no text are left alone. Each file is
/// replaced whole, after a copy of it has been kept, or stays as it was: one that cannot be read or
/// written, or whose pattern takes too many steps, is told by LastError, and the others go on.
///
/// Execute works in the caller's thread and lets the application handle messages between files.
class QEL_API TQELTextReplace : public TQELActionComponent {
 public:
  explicit TQELTextReplace(vcl::TComponent* owner);
  ~TQELTextReplace() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// How many hits the last Execute has replaced, or would have with Preview.
  int Hits() const { return FHits; }
  /// How many files it has changed, or would have.
  int ChangedFiles() const { return FChangedFiles; }
  /// Ends the work that is under way, at the next file.
  void Abort() { FAborted = true; }
  bool Aborted() const { return FAborted; }
  /// From Execute on until it returns.
  bool Busy() const { return FBusy; }

  const std::string& BackupExtension() const { return FBackupExtension; }
  /// What is put behind the name of the copy that is kept of a file; empty for no copy.
  void SetBackupExtension(const std::string& extension) { FBackupExtension = extension; }
  vcl::TStrings* Files() const { return FFiles.get(); }
  /// The files, one a line.
  void SetFiles(const vcl::TStrings* files) { FFiles->Assign(files); }
  const std::string& Find() const { return FFind; }
  /// The text, or the pattern, that is looked for.
  void SetFind(const std::string& text) { FFind = text; }
  int MaxSteps() const { return FMaxSteps; }
  /// How many steps a pattern may take in a file; less than 1 is not taken.
  void SetMaxSteps(int steps);
  TQELTextReplaceOptions Options() const { return FOptions; }
  /// How it is looked for.
  void SetOptions(TQELTextReplaceOptions options) { FOptions = options; }
  bool Preview() const { return FPreview; }
  /// True: nothing is changed, the hits are only told and counted.
  void SetPreview(bool preview) { FPreview = preview; }
  const std::string& ReplaceBy() const { return FReplaceBy; }
  /// What it is replaced by.
  void SetReplaceBy(const std::string& text) { FReplaceBy = text; }

  /// A file is about to be read.
  TQELReplaceProgressEvent OnProgress;
  /// Something has been found.
  TQELReplaceEvent OnReplace;

 protected:
  bool DoExecute() override;
  std::string DesignText() const override;

 private:
  class TRun;
  std::string FBackupExtension = ".bak";
  std::unique_ptr<vcl::TStringList> FFiles;
  std::string FFind;
  int FMaxSteps = 10'000'000;
  TQELTextReplaceOptions FOptions;
  bool FPreview = false;
  std::string FReplaceBy;
  int FHits = 0;
  int FChangedFiles = 0;
  bool FAborted = false;
  bool FBusy = false;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELTextReplaceOption>{
    "TQELTextReplaceOption", "roMatchCase roWholeWords roRegularExpression",
    "TQELTextReplaceOptions"};
