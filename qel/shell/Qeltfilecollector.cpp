// TQELFileCollector: its table, and the search.
#include "qel/shell/Qeltfilecollector.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "qel/shell/private/folders.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filemasks.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {

const vcl::TClass& TQELFileCollector::Class() {
  using T = TQELFileCollector;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELFileCollector", "qel/shell/Qeltfilecollector.h",
      {
          Property<&T::Attributes, &T::SetAttributes>("Attributes")
              .Default(TQELFileAttributes{faReadOnly, faHidden, faSystem, faArchive}),
          Property<&T::Folder, &T::SetFolder>("Folder").Default(""),
          Property<&T::FollowLinks, &T::SetFollowLinks>("FollowLinks").Default(false),
          Property<&T::Masks, &T::SetMasks>("Masks").Default(""),
          Property<&T::MaxSize, &T::SetMaxSize>("MaxSize").Default(std::int64_t{0}),
          Property<&T::MinSize, &T::SetMinSize>("MinSize").Default(std::int64_t{0}),
          Property<&T::NewerThan, &T::SetNewerThan>("NewerThan").Type("TDateTime").Default(0.0),
          Property<&T::OlderThan, &T::SetOlderThan>("OlderThan").Type("TDateTime").Default(0.0),
          Property<&T::Recursive, &T::SetRecursive>("Recursive").Default(true),
          Event<&T::OnFile>("OnFile").Type(
              "TQELCollectFileEvent", "vcl::TObject* sender, const std::string& path, bool& take"),
          Event<&T::OnProgress>("OnProgress")
              .Type("TQELCollectProgressEvent",
                    "vcl::TObject* sender, const std::string& folder, int found, bool& abort"),
      });
  return info;
}

TQELFileCollector::TQELFileCollector(vcl::TComponent* owner)
    : TQELActionComponent(owner), FFiles(std::make_unique<vcl::TStringList>()) {}

TQELFileCollector::~TQELFileCollector() { AnnounceEnd(); }

std::string TQELFileCollector::DesignText() const {
  return vcl::Concat("At run time it would collect the files in '", FFolder, "'.");
}

/// One search. A handler may free the component, which ends it.
class TQELFileCollector::TSearch {
 public:
  explicit TSearch(TQELFileCollector& owner)
      : FOwner(owner), FWatch(&owner), FMasks(owner.FMasks) {}

  /// False when it was ended.
  bool Run(const std::string& start) {
    FFolders.push_back({start, {}});
    bool first = true;
    while (!FFolders.empty()) {
      const TFolder folder = std::move(FFolders.back());
      FFolders.pop_back();
      if (!Tell(folder.Path)) return false;
      TContents contents;
      try {
        contents = Read(folder.Path);
      } catch (const vcl::EInOutError& error) {
        if (first) throw;  // There is nothing to search in.
        FRefused = error.what();
      }
      if (!Take(folder, std::move(contents))) return false;
      first = false;
    }
    return true;
  }
  /// The folder that could not be read last, and why; empty for none.
  const std::string& Refused() const { return FRefused; }

 private:
  using TId = std::pair<std::uint32_t, std::uint64_t>;
  struct TFolder {
    std::string Path;
    std::vector<TId> Above;  ///< Those that hold it, as far as links are followed.
  };

  bool Tell(const std::string& folder) {
    constexpr ULONGLONG pause = 50;  // Milliseconds between two looks at messages.
    bool abort = false;
    FOwner.OnProgress(&FOwner, folder, FOwner.FFiles->Count(), abort);
    if (!FWatch.Gone() && ::GetTickCount64() - FPumped >= pause) {
      vcl::Application()->ProcessMessages();
      FPumped = ::GetTickCount64();
    }
    if (FWatch.Gone()) return false;
    if (abort) FOwner.FAborted = true;
    return !FOwner.FAborted;
  }

  /// The files that fit, and the folders that are searched, too, in their order.
  struct TContents {
    std::vector<std::string> Files, Folders;
  };
  TContents Read(const std::string& folder) const {
    TContents contents;
    folders::ScanEntries(folder, [&](const folders::TEntry& entry) {
      const std::string path = folder + entry.Name + "\\";
      if (!entry.IsFolder()) {
        if (Fits(entry)) contents.Files.push_back(path);
      } else if (FOwner.FRecursive && (!entry.IsLink() || FOwner.FFollowLinks)) {
        contents.Folders.push_back(path);
      }
      return true;
    });
    folders::Sort(contents.Files);
    folders::Sort(contents.Folders);
    for (std::string& each : contents.Files) each.pop_back();
    return contents;
  }

  bool Take(const TFolder& folder, TContents contents) {
    for (const std::string& each : contents.Files) {
      if (!TakeFile(each)) return false;
    }
    const std::vector<TId> above = Around(folder);
    std::ranges::reverse(contents.Folders);
    for (std::string& each : contents.Folders) {
      const bool loop = FOwner.FFollowLinks && std::ranges::count(above, IdOf(each)) > 0;
      if (!loop) FFolders.push_back({std::move(each), above});
    }
    return true;
  }

  static TId IdOf(const std::string& folder) { return folders::IdOf(folder).value_or(TId{1, 0}); }
  std::vector<TId> Around(const TFolder& folder) const {
    std::vector<TId> above = folder.Above;
    if (FOwner.FFollowLinks) above.push_back(IdOf(folder.Path));
    return above;
  }

  bool Fits(const folders::TEntry& entry) const {
    static constexpr std::pair<DWORD, TQELFileAttribute> attributes[] = {
        {FILE_ATTRIBUTE_READONLY, faReadOnly},
        {FILE_ATTRIBUTE_HIDDEN, faHidden},
        {FILE_ATTRIBUTE_SYSTEM, faSystem},
        {FILE_ATTRIBUTE_ARCHIVE, faArchive}};
    for (const auto& [bit, attribute] : attributes) {
      if ((entry.Attributes & bit) && !FOwner.FAttributes.Has(attribute)) return false;
    }
    const auto size = static_cast<std::int64_t>(entry.Size);
    if (size < FOwner.FMinSize || (FOwner.FMaxSize > 0 && size > FOwner.FMaxSize)) return false;
    if (FOwner.FNewerThan > 0 || FOwner.FOlderThan > 0) {
      const vcl::TDateTime written = folders::LocalTime(entry.Written);
      if (written < FOwner.FNewerThan) return false;
      if (FOwner.FOlderThan > 0 && written >= FOwner.FOlderThan) return false;
    }
    return FMasks.Matches(entry.Name);
  }

  bool TakeFile(const std::string& file) {
    bool take = true;
    FOwner.OnFile(&FOwner, file, take);
    if (FWatch.Gone()) return false;
    if (take) FOwner.FFiles->Add(file);
    return !FOwner.FAborted;
  }

  TQELFileCollector& FOwner;
  vcl::TWatch FWatch;
  vcl::TFileMasks FMasks;
  std::vector<TFolder> FFolders;  // Still to be read, the next one last.
  std::string FRefused;
  ULONGLONG FPumped = 0;
};

bool TQELFileCollector::DoExecute() {
  if (FBusy) throw vcl::EInvalidOperation("Another search is under way");
  FAborted = false;
  FFiles->Clear();
  const std::string start = folders::Normalized(FFolder);
  if (start.empty()) throw vcl::EInOutError("There is no folder to search in");
  const vcl::TWatch watch(this);
  const vcl::TSetFor busy(FBusy, true, this);
  TSearch search(*this);
  const bool done = search.Run(start);
  if (!watch.Gone() && !search.Refused().empty()) Note(search.Refused());
  return done;
}

}  // namespace qel
