// TQELTextReplace: its table, the search in a text, and the files.
#include "qel/shell/Qelttextreplace.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "qel/shell/private/regularexpression.h"
#include "qel/shell/private/textcoding.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

const vcl::TClass& TQELTextReplace::Class() {
  using T = TQELTextReplace;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELTextReplace", "qel/shell/Qelttextreplace.h",
      {
          Property<&T::BackupExtension, &T::SetBackupExtension>("BackupExtension").Default(".bak"),
          Property<&T::Files, &T::SetFiles>("Files"),
          Property<&T::Find, &T::SetFind>("Find").Default(""),
          Property<&T::MaxSteps, &T::SetMaxSteps>("MaxSteps").Default(10'000'000),
          Property<&T::Options, &T::SetOptions>("Options").Default(TQELTextReplaceOptions{}),
          Property<&T::Preview, &T::SetPreview>("Preview").Default(false),
          Property<&T::ReplaceBy, &T::SetReplaceBy>("ReplaceBy").Default(""),
          Event<&T::OnProgress>("OnProgress")
              .Type("TQELReplaceProgressEvent",
                    "vcl::TObject* sender, const std::string& file, int percent, bool& abort"),
          Event<&T::OnReplace>("OnReplace")
              .Type("TQELReplaceEvent",
                    "vcl::TObject* sender, const std::string& file, int line, const std::string& "
                    "found, std::string& replacement, qel::TQELReplaceAction& action"),
      });
  return info;
}

TQELTextReplace::TQELTextReplace(vcl::TComponent* owner)
    : TQELActionComponent(owner), FFiles(std::make_unique<vcl::TStringList>()) {}

TQELTextReplace::~TQELTextReplace() { AnnounceEnd(); }

void TQELTextReplace::SetMaxSteps(int steps) {
  if (steps >= 1) FMaxSteps = steps;
}

std::string TQELTextReplace::DesignText() const {
  return vcl::Concat("At run time it would replace '", vcl::Shown(FFind), "' by '",
                     vcl::Shown(FReplaceBy), "' in the files.");
}

namespace {

constexpr std::size_t MostBytes = 64 << 20;  // Of a file, which is in memory several times.

/// What is looked for in a text.
class TSearched {
 public:
  TSearched(const std::string& find, TQELTextReplaceOptions options)
      : FText(CharactersOf(find)),
        FMatchCase(options.Has(roMatchCase)),
        FWholeWords(options.Has(roWholeWords)) {
    if (FText.empty()) throw vcl::EConvertError("There is no text to look for");
    if (options.Has(roRegularExpression)) FPattern.emplace(FText, FMatchCase);
    if (!FMatchCase) std::ranges::transform(FText, FText.begin(), SmallCharacter);
  }

  /// The text as it is looked through; of the same length.
  std::u32string Prepared(const std::u32string& text) const {
    std::u32string prepared = text;
    if (!FMatchCase && !FPattern)
      std::ranges::transform(prepared, prepared.begin(), SmallCharacter);
    return prepared;
  }

  std::optional<TRegularMatch> Next(std::u32string_view prepared, std::size_t from,
                                    std::size_t& steps) const {
    for (;; ++from) {
      std::optional<TRegularMatch> match =
          FPattern ? FPattern->Find(prepared, from, steps) : Plain(prepared, from);
      if (!match || !FWholeWords) return match;
      const auto [begin, end] = *match->Groups[0];
      const bool inside = (begin > 0 && IsWordCharacter(prepared[begin - 1])) ||
                          (end < prepared.size() && IsWordCharacter(prepared[end]));
      if (!inside) return match;
      from = begin;
    }
  }

  /// What a hit becomes.
  std::u32string Replacement(const std::u32string& by, const std::u32string& text,
                             const TRegularMatch& match) const {
    if (!FPattern) return by;
    std::u32string result;
    for (std::size_t i = 0; i < by.size(); ++i) {
      const char32_t next = i + 1 < by.size() ? by[i + 1] : U'\0';
      if (by[i] == '$' && next >= '0' && next <= '9') {
        const std::size_t group = next - '0';
        if (group < match.Groups.size() && match.Groups[group]) {
          const auto [from, to] = *match.Groups[group];
          result += text.substr(from, to - from);
        }
        ++i;
      } else if (by[i] == '$' && next == '$') {
        result += by[i++];
      } else {
        result += by[i];
      }
    }
    return result;
  }

 private:
  std::optional<TRegularMatch> Plain(std::u32string_view prepared, std::size_t from) const {
    const std::size_t at = prepared.find(FText, from);
    if (at == std::u32string_view::npos) return {};
    return TRegularMatch{{TRegularMatch::TSpan{at, at + FText.size()}}};
  }

  std::u32string FText;
  std::optional<TRegularExpression> FPattern;
  bool FMatchCase, FWholeWords;
};

std::string Contents(const std::string& file) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  ::GetFileAttributesExW(vcl::SystemFileName(file).c_str(), GetFileExInfoStandard, &data);
  if (data.nFileSizeHigh > 0 || data.nFileSizeLow > MostBytes) {
    throw vcl::EInOutError(vcl::Concat("'", file, "' is too large to be replaced in"));
  }
  const auto bytes = vcl::ReadWholeFile(file);
  if (!bytes) throw vcl::EInOutError(vcl::Concat("There is no file '", file, "'"));
  return *bytes;
}

}  // namespace

/// One run through the files. A handler may free the component, which ends it.
class TQELTextReplace::TRun {
 public:
  explicit TRun(TQELTextReplace& owner)
      : FOwner(owner),
        FWatch(&owner),
        FSearched(owner.FFind, owner.FOptions),
        FBy(CharactersOf(owner.FReplaceBy)) {}

  /// False when it was ended.
  bool Go() {
    vcl::TStringList files;  // A handler may change those of the component.
    files.Assign(FOwner.FFiles.get());
    for (int i = 0; i < files.Count(); ++i) {
      if (!Tell(files.Strings(i), i * 100 / files.Count())) return false;
      try {
        if (!Replace(files.Strings(i))) return false;
      } catch (const vcl::EAbort&) {
        throw;
      } catch (const vcl::Exception& error) {
        FError = vcl::Concat(files.Strings(i), ": ", error.what());
      }
    }
    return true;
  }
  const std::string& Error() const { return FError; }

 private:
  bool Tell(const std::string& file, int percent) {
    bool abort = false;
    FOwner.OnProgress(&FOwner, file, percent, abort);
    if (!FWatch.Gone()) vcl::Application()->ProcessMessages();
    if (FWatch.Gone()) return false;
    FOwner.FAborted = FOwner.FAborted || abort;
    return !FOwner.FAborted;
  }

  bool Replace(const std::string& file) {
    const std::string former = Contents(file);
    std::optional<TCodedText> text = DecodeText(former);
    if (!text) return true;  // No text at all.
    int hits = 0;
    std::u32string result;
    if (!ReplaceIn(file, text->Text, result, hits)) return false;
    FOwner.FHits += hits;
    text->Text = std::move(result);
    const std::string bytes = hits > 0 ? EncodeText(*text) : former;
    if (bytes == former) return true;
    if (!FOwner.FPreview) Write(file, bytes);
    ++FOwner.FChangedFiles;
    return true;
  }

  void Write(const std::string& file, const std::string& bytes) const {
    if (vcl::FileIsReadOnly(file)) {
      throw vcl::EInOutError("the file may only be read");
    }
    if (!FOwner.FBackupExtension.empty()) {
      const std::wstring copy = vcl::SystemFileName(file + FOwner.FBackupExtension);
      if (!::CopyFileW(vcl::SystemFileName(file).c_str(), copy.c_str(), FALSE)) {
        throw EQELSystemError("no copy of it can be kept", static_cast<int>(::GetLastError()));
      }
    }
    vcl::ReplaceWholeFile(file, bytes);
  }

  /// Puts the text with what is replaced into `result`; false when the work was ended.
  bool ReplaceIn(const std::string& file, const std::u32string& text, std::u32string& result,
                 int& hits) {
    const std::u32string prepared = FSearched.Prepared(text);
    auto steps = static_cast<std::size_t>(FOwner.FMaxSteps);
    std::size_t at = 0, copied = 0, counted = 0;
    int line = 1;
    while (const auto match = FSearched.Next(prepared, at, steps)) {
      const auto [from, to] = *match->Groups[0];
      for (; counted < from; ++counted) line += text[counted] == '\n';
      std::u32string by = FSearched.Replacement(FBy, text, *match);
      const bool wanted = Wanted(file, line, text.substr(from, to - from), by);
      if (FWatch.Gone() || FOwner.FAborted) return false;
      result += text.substr(copied, from - copied);
      result += wanted ? by : text.substr(from, to - from);
      hits += wanted;
      copied = to;
      // An empty hit is not looked for again in the same place.
      at = to == from ? to + 1 : to;
      if (at > text.size()) break;
    }
    result += text.substr(copied);
    return true;
  }

  bool Wanted(const std::string& file, int line, const std::u32string& found, std::u32string& by) {
    if (FAll || !FOwner.OnReplace) return true;
    TQELReplaceAction action = raReplace;
    std::string replacement = Utf8Of(by);
    FOwner.OnReplace(&FOwner, file, line, Utf8Of(found), replacement, action);
    if (FWatch.Gone()) return false;
    if (action == raStop) FOwner.FAborted = true;
    FAll = action == raAll;
    by = CharactersOf(replacement);
    return action == raReplace || action == raAll;
  }

  TQELTextReplace& FOwner;
  vcl::TWatch FWatch;
  TSearched FSearched;
  std::u32string FBy;
  std::string FError;
  bool FAll = false;
};

bool TQELTextReplace::DoExecute() {
  if (FBusy) throw vcl::EInvalidOperation("Another replacement is under way");
  FAborted = false;
  FHits = FChangedFiles = 0;
  const vcl::TWatch watch(this);
  const vcl::TSetFor busy(FBusy, true, this);
  TRun run(*this);
  const bool done = run.Go();
  if (watch.Gone()) return false;
  if (!run.Error().empty()) throw vcl::EInOutError(run.Error());
  return done;
}

}  // namespace qel
