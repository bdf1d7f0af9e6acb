// Settings in files: the values of TCustomIniFile as texts, TIniFile and TMemIniFile.
#include "vcl/rtl/inifile.h"

#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/inicoding.h"
#include "vcl/rtl/private/initext.h"
#include "vcl/rtl/private/sharedfile.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

std::string_view Unquoted(std::string_view value) {
  const bool quoted = value.size() > 1 && (value.front() == '"' || value.front() == '\'') &&
                      value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

void Replace(TStrings& list, const std::vector<std::string>& lines) {
  const TUpdating updating(list);
  list.Clear();
  for (const std::string& line : lines) list.Add(line);
}

std::string FullName(const std::string& fileName) {
  if (fileName.empty()) throw EIniFileException("A settings file must have a name");
  return os::SettingsFileName(fileName);
}

[[noreturn]] void Refuse(const char* what, const std::string& fileName) {
  RaiseLastOSError<EIniFileException>("Cannot ", what, " file \"", fileName, "\"");
}

/// The file's bytes; none when it is missing.
std::string ReadOrRaise(const std::string& fileName) {
  std::string bytes;
  if (os::ReadWholeFile(fileName, bytes) == os::TReading::Refused) Refuse("read", fileName);
  return bytes;
}

/// One's turn to change a file.
class TTurn {
 public:
  explicit TTurn(const std::string& fileName) : FFileName(fileName), FTurn(fileName) {
    if (!FTurn.Held()) Refuse("change", fileName);
  }
  void Write(const std::string& bytes) const {
    if (!os::ReplaceWholeFile(FFileName, bytes, os::TWritten::Later)) Refuse("write", FFileName);
  }

 private:
  std::string FFileName;
  os::TFileTurn FTurn;
};

/// Reads a value that a text may say; `convert` returns false when it doesn't.
template <class T, class Convert>
T ReadAs(const std::string& text, T otherwise, Convert convert) {
  T value{};
  return convert(text, value) ? value : otherwise;
}

}  // namespace

std::string TCustomIniFile::ReadString(const std::string& section, const std::string& ident,
                                       const std::string& otherwise) const {
  std::string value = otherwise;
  Look([&](const TIniText& text) {
    if (const auto found = text.Find(section, ident)) value = Unquoted(*found);
  });
  return value;
}

void TCustomIniFile::WriteString(const std::string& section, const std::string& ident,
                                 const std::string& value) {
  if (!TIniText::CanHold(section)) {
    throw EIniFileException(Concat("\"", FileName(), "\" can't have a section \"", section, "\""));
  }
  if (!TIniText::CanHold(ident, value)) {
    throw EIniFileException(
        Concat("\"", FileName(), "\" can't hold the entry \"", ident, "=", value, "\""));
  }
  Change([&](TIniText& text) { text.Write(section, ident, value); });
}

int TCustomIniFile::ReadInteger(const std::string& section, const std::string& ident,
                                int otherwise) const {
  return StrToIntDef(ReadString(section, ident, {}), otherwise);
}

void TCustomIniFile::WriteInteger(const std::string& section, const std::string& ident, int value) {
  WriteString(section, ident, IntToStr(value));
}

bool TCustomIniFile::ReadBool(const std::string& section, const std::string& ident,
                              bool otherwise) const {
  return ReadInteger(section, ident, otherwise) != 0;
}

void TCustomIniFile::WriteBool(const std::string& section, const std::string& ident, bool value) {
  WriteString(section, ident, value ? "1" : "0");
}

double TCustomIniFile::ReadFloat(const std::string& section, const std::string& ident,
                                 double otherwise) const {
  return StrToFloatDef(ReadString(section, ident, {}), otherwise);
}

void TCustomIniFile::WriteFloat(const std::string& section, const std::string& ident,
                                double value) {
  WriteString(section, ident, FloatToStr(value));
}

TDateTime TCustomIniFile::ReadDate(const std::string& section, const std::string& ident,
                                   TDateTime otherwise) const {
  return ReadAs(ReadString(section, ident, {}), otherwise,
                [](const auto& text, TDateTime& value) { return TryStrToDate(text, value); });
}

void TCustomIniFile::WriteDate(const std::string& section, const std::string& ident,
                               TDateTime value) {
  WriteString(section, ident, DateToStr(value));
}

TDateTime TCustomIniFile::ReadTime(const std::string& section, const std::string& ident,
                                   TDateTime otherwise) const {
  return ReadAs(ReadString(section, ident, {}), otherwise,
                [](const auto& text, TDateTime& value) { return TryStrToTime(text, value); });
}

void TCustomIniFile::WriteTime(const std::string& section, const std::string& ident,
                               TDateTime value) {
  WriteString(section, ident, TimeToStr(value));
}

TDateTime TCustomIniFile::ReadDateTime(const std::string& section, const std::string& ident,
                                       TDateTime otherwise) const {
  return ReadAs(ReadString(section, ident, {}), otherwise,
                [](const auto& text, TDateTime& value) { return TryStrToDateTime(text, value); });
}

void TCustomIniFile::WriteDateTime(const std::string& section, const std::string& ident,
                                   TDateTime value) {
  WriteString(section, ident, DateTimeToStr(value));
}

void TCustomIniFile::ReadSection(const std::string& section, TStrings& list) const {
  std::vector<std::string> idents;
  Look([&](const TIniText& text) {
    for (const auto& [ident, value] : text.Entries(section)) {
      if (value) idents.emplace_back(ident);
    }
  });
  Replace(list, idents);
}

void TCustomIniFile::ReadSections(TStrings& list) const {
  std::vector<std::string> names;
  Look([&](const TIniText& text) {
    for (const std::string_view name : text.Sections()) names.emplace_back(name);
  });
  Replace(list, names);
}

void TCustomIniFile::ReadSectionValues(const std::string& section, TStrings& list) const {
  std::vector<std::string> lines;
  Look([&](const TIniText& text) {
    for (const auto& [ident, value] : text.Entries(section)) {
      if (value) lines.push_back(Concat(ident, "=", Unquoted(*value)));
    }
  });
  Replace(list, lines);
}

bool TCustomIniFile::SectionExists(const std::string& section) const {
  bool exists = false;
  Look([&](const TIniText& text) { exists = text.HasSection(section); });
  return exists;
}

bool TCustomIniFile::ValueExists(const std::string& section, const std::string& ident) const {
  bool exists = false;
  Look([&](const TIniText& text) { exists = text.Find(section, ident).has_value(); });
  return exists;
}

void TCustomIniFile::EraseSection(const std::string& section) {
  Change([&](TIniText& text) { text.Erase(section); });
}

void TCustomIniFile::DeleteKey(const std::string& section, const std::string& ident) {
  Change([&](TIniText& text) { text.Delete(section, ident); });
}

TIniFile::TIniFile(const std::string& fileName)
    : TCustomIniFile(fileName), FFullName(FullName(fileName)) {}

// The memory of the last read is used again: making it anew costs more than reading the file.
void TIniFile::Look(const std::function<void(const TIniText&)>& look) const {
  constexpr std::size_t worthKeeping = 1 << 20;
  static thread_local std::string kept;
  std::string bytes = std::move(kept);
  const os::TReading reading = os::ReadWholeFile(FFullName, bytes);
  if (reading == os::TReading::Refused && FMustRead) Refuse("read", FFullName);
  if (reading != os::TReading::Done) bytes.clear();
  TIniText text(DecodeIni(std::move(bytes)));
  look(text);
  if (text.Text().size() < worthKeeping) kept = text.TakeText();
}

void TIniFile::Change(const std::function<void(TIniText&)>& change) {
  const TTurn turn(FFullName);
  const std::string bytes = ReadOrRaise(FFullName);
  TIniText text(DecodeIni(bytes));
  const std::string former = text.Text();
  change(text);
  if (text.Text() != former) turn.Write(EncodeIni(text.Text(), IniCodingOf(bytes)));
}

TMemIniFile::TMemIniFile(const std::string& fileName)
    : TCustomIniFile(fileName), FFullName(FullName(fileName)) {
  const std::string bytes = ReadOrRaise(FFullName);
  FCoding = IniCodingOf(bytes);
  FText = std::make_unique<TIniText>(DecodeIni(bytes));
}

TMemIniFile::~TMemIniFile() = default;

void TMemIniFile::Look(const std::function<void(const TIniText&)>& look) const { look(*FText); }

void TMemIniFile::Change(const std::function<void(TIniText&)>& change) {
  change(*FText);
  FModified = true;
}

void TMemIniFile::UpdateFile() {
  if (!FModified) return;
  TTurn(FFullName).Write(EncodeIni(FText->Text(), FCoding));
  FModified = false;
}

}  // namespace vcl
