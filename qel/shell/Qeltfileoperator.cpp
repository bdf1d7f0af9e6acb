// TQELFileOperator: its table, what it is to work on, and what it asks.
#include "qel/shell/Qeltfileoperator.h"

#include <optional>

#include "qel/shell/private/filetransfer.h"
#include "qel/shell/private/folders.h"
#include "qel/shell/private/progresswindow.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/filemasks.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {

const vcl::TClass& TQELFileOperator::Class() {
  using T = TQELFileOperator;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELFileOperator", "qel/shell/Qeltfileoperator.h",
      {
          Property<&T::Destination, &T::SetDestination>("Destination").Default(""),
          Property<&T::Operation, &T::SetOperation>("Operation").Default(foCopy),
          Property<&T::Options, &T::SetOptions>("Options").Default(
              TQELFileOperatorOptions{foAllowUndo}),
          Property<&T::ProgressTitle, &T::SetProgressTitle>("ProgressTitle").Default(""),
          Property<&T::Source, &T::SetSource>("Source"),
          Event<&T::OnConflict>("OnConflict")
              .Type("TQELFileConflictEvent",
                    "vcl::TObject* sender, const std::string& source, const std::string& target, "
                    "qel::TQELFileConflict& action"),
          Event<&T::OnError>("OnError").Type(
              "TQELFileErrorEvent",
              "vcl::TObject* sender, const std::string& path, const std::string& error, "
              "qel::TQELFileFailure& action"),
          Event<&T::OnProgress>("OnProgress")
              .Type("TQELFileProgressEvent",
                    "vcl::TObject* sender, const std::string& path, int percent, bool& abort"),
      });
  return info;
}

TQELFileOperator::TQELFileOperator(vcl::TComponent* owner)
    : TQELActionComponent(owner), FSource(std::make_unique<vcl::TStringList>()) {}

TQELFileOperator::~TQELFileOperator() { AnnounceEnd(); }

// ---- What it is to work on ----

namespace {

bool IsMask(const std::string& name) { return name.find_first_of("*?") != std::string::npos; }

/// What in the folder the mask means.
void Expand(const std::string& path, bool filesOnly, std::vector<std::string>& sources) {
  const std::string folder = vcl::ExtractFilePath(vcl::ExpandFileName(path));
  const vcl::TFileMasks masks(vcl::ExtractFileName(path));
  folders::ScanEntries(folder, [&](const folders::TEntry& entry) {
    const bool meant = masks.Matches(entry.Name) && !(filesOnly && entry.IsFolder());
    if (meant) sources.push_back(folder + entry.Name);
    return true;
  });
}

}  // namespace

std::vector<std::string> TQELFileOperator::Sources() const {
  const bool filesOnly = FOptions.Has(foFilesOnly);
  std::vector<std::string> sources;
  for (int i = 0; i < FSource->Count(); ++i) {
    const std::string line(vcl::Trim(FSource->Strings(i)));
    if (line.empty()) continue;
    if (IsMask(vcl::ExtractFileName(line))) {
      Expand(line, filesOnly, sources);
    } else if (!filesOnly || !vcl::DirectoryExists(line)) {
      sources.push_back(line);
    }
  }
  if (sources.empty()) throw vcl::EInOutError("There are no files to work on");
  return sources;
}

std::string TQELFileOperator::Title() const {
  static constexpr const char* titles[] = {"Copying files", "Moving files", "Deleting files",
                                           "Renaming a file"};
  return FProgressTitle.empty() ? titles[FOperation] : FProgressTitle;
}

std::string TQELFileOperator::DesignText() const {
  static constexpr const char* verbs[] = {"copy", "move", "delete", "rename"};
  return vcl::Concat("At run time it would ", verbs[FOperation], " the files of Source.");
}

// ---- The work ----

/// One operation. A handler may free the component, which ends it.
class TQELFileOperator::TRun {
 public:
  explicit TRun(TQELFileOperator& owner) : FOwner(owner), FWatch(&owner) {
    if (!owner.FOptions.Has(foSilent)) FWindow.emplace(owner.Title());
  }
  TTransferAsks Asks() {
    return {[this](const std::string& source, const std::string& target) {
              return Taken(source, target);
            },
            [this](const std::string& path, const EQELSystemError& error) {
              return Failed(path, error);
            },
            [this](const std::string& path, double done) { return Going(path, done); }};
  }
  bool Gone() const { return FWatch.Gone(); }
  /// The error for which the work was ended, where nobody was asked.
  const std::optional<EQELSystemError>& Error() const { return FError; }

 private:
  bool Going(const std::string& path, double done) {
    bool abort = false;
    FOwner.OnProgress(&FOwner, path, static_cast<int>(done * 100), abort);
    if (FWatch.Gone()) return false;
    if (FWindow) {
      abort = !FWindow->Show(path, done) || abort;
    } else {
      vcl::Application()->ProcessMessages();
    }
    if (FWatch.Gone()) return false;
    if (abort) FOwner.FAborted = true;
    return !FOwner.FAborted;
  }

  TNameTaken Taken(const std::string& source, const std::string& target) {
    TQELFileConflict action = fcReplace;
    if (FOwner.FOptions.Has(foRenameOnCollision)) {
      action = fcRename;
    } else if (FAll) {
      action = *FAll;
    } else if (!FOwner.OnConflict && !FOwner.FOptions.Has(foNoConfirmation)) {
      action = AskTaken(target);
    }
    FOwner.OnConflict(&FOwner, source, target, action);
    if (FWatch.Gone()) return TNameTaken::Abort;
    switch (action) {
      case fcReplace: return TNameTaken::Replace;
      case fcSkip: return TNameTaken::Skip;
      case fcRename: return TNameTaken::Rename;
      case fcAbort: break;
    }
    FOwner.FAborted = true;
    return TNameTaken::Abort;
  }

  TQELFileConflict AskTaken(const std::string& target) {
    const auto answer =
        vcl::MessageDlg(vcl::Concat("There is a '", target, "' already. Replace it?"),
                        vcl::mtConfirmation, {vcl::mbYes, vcl::mbAll, vcl::mbNo, vcl::mbCancel});
    if (answer == vcl::mrAll) FAll = fcReplace;
    if (answer == vcl::mrAll || answer == vcl::mrYes) return fcReplace;
    return answer == vcl::mrNo ? fcSkip : fcAbort;
  }

  TFailed Failed(const std::string& path, const EQELSystemError& error) {
    TQELFileFailure action = ffAbort;
    const bool ask = !FOwner.OnError && !FOwner.FOptions.Has(foNoConfirmation);
    if (ask) action = AskFailed(error);
    FOwner.OnError(&FOwner, path, error.what(), action);
    if (FWatch.Gone()) return TFailed::Abort;
    if (action == ffRetry) return TFailed::Retry;
    if (action == ffSkip) return TFailed::Skip;
    FOwner.FAborted = true;
    if (!ask) FError = error;
    return TFailed::Abort;
  }

  static TQELFileFailure AskFailed(const EQELSystemError& error) {
    const auto answer =
        vcl::MessageDlg(error.what(), vcl::mtError, {vcl::mbAbort, vcl::mbRetry, vcl::mbIgnore});
    return answer == vcl::mrRetry ? ffRetry : answer == vcl::mrIgnore ? ffSkip : ffAbort;
  }

  TQELFileOperator& FOwner;
  vcl::TWatch FWatch;
  std::optional<TProgressWindow> FWindow;
  std::optional<TQELFileConflict> FAll;
  std::optional<EQELSystemError> FError;
};

bool TQELFileOperator::DoExecute() {
  if (FBusy) throw vcl::EInvalidOperation("Another operation is under way");
  FAborted = false;
  const std::vector<std::string> sources = Sources();
  const vcl::TSetFor busy(FBusy, true, this);
  if (FOperation == foRename) return Rename(sources);
  const bool bin = FOperation == foDelete && FOptions.Has(foAllowUndo);
  if (FOperation == foDelete && !MayDelete(sources)) {
    FAborted = true;
    return false;
  }
  if (bin) {
    FAborted = !folders::Recycle(sources, vcl::Application()->Handle());
    return !FAborted;
  }
  if (FOperation != foDelete && FDestination.empty()) {
    throw vcl::EInOutError("There is no folder that the files are to go to");
  }
  TRun run(*this);
  TFileTransfer transfer(run.Asks());
  const bool done = FOperation == foDelete
                        ? transfer.Delete(sources)
                        : transfer.Transfer(sources, FDestination, FOperation == foMove);
  if (run.Error()) throw EQELSystemError(*run.Error());
  return done && !run.Gone();
}

/// What the bin does not take, asks first.
bool TQELFileOperator::MayDelete(const std::vector<std::string>& sources) {
  if (FOptions.Has(foNoConfirmation)) return true;
  bool lost = !FOptions.Has(foAllowUndo);
  for (const std::string& each : sources) {
    lost = lost || folders::DriveType(vcl::ExpandFileName(each)) != DRIVE_FIXED;
  }
  if (!lost) return true;
  const std::string what = sources.size() == 1
                               ? vcl::Concat("'", sources.front(), "'")
                               : vcl::Concat("these ", std::to_string(sources.size()), " files");
  const vcl::TWatch watch(this);
  const auto answer = vcl::MessageDlg(vcl::Concat("Delete ", what, " for good?"),
                                      vcl::mtConfirmation, {vcl::mbYes, vcl::mbNo});
  return answer == vcl::mrYes && !watch.Gone();
}

bool TQELFileOperator::Rename(const std::vector<std::string>& sources) const {
  if (sources.size() != 1) throw vcl::EInOutError("One file alone can be renamed at a time");
  const std::string source = vcl::ExpandFileName(sources.front());
  const bool folder = vcl::DirectoryExists(source);
  folders::CheckName(FDestination, folder ? "a folder" : "a file");
  const std::string target = vcl::ExtractFilePath(source) + FDestination;
  return folders::ShellRename(source, target, vcl::Application()->Handle());
}

}  // namespace qel
