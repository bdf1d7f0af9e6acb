// TFormDocument: reading and writing the form, its former states, and the copy for a killed
// designer.
#include "ide/formdocument.h"

#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace ide {

using namespace vcl;

namespace {

constexpr std::size_t UndoLimit = std::size_t{64} << 20;

std::string ReadFile(const std::string& fileName) {
  TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
  return file.ReadRest();
}

std::string TextOf(TForm& root) {
  TStringStream stream;
  WriteComponentText(stream, &root);
  return stream.DataString();
}

/// When the file was written last; 0 when there is none.
ULONGLONG TimeOf(const std::string& fileName) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!::GetFileAttributesExW(ToUtf16(fileName).c_str(), GetFileExInfoStandard, &data)) return 0;
  const FILETIME& time = data.ftLastWriteTime;
  return ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

}  // namespace

TFormDocument::TFormDocument(TDesignerHook& hook) : FHook(hook), FHistory(UndoLimit) {
  FKeeper.OnProblem = [this](const std::string& message) {
    if (!FQuiet && OnProblem) OnProblem(message);
  };
}

TFormDocument::~TFormDocument() { Tell(OnRootGoing); }

// Reading and writing.

/// A form that could not be saved is not opened.
std::unique_ptr<TForm> TFormDocument::ReadForm(const std::string& bytes, const std::string& name) {
  auto root = Read(bytes, name);
  try {
    TextOf(*root);
  } catch (const Exception& error) {
    throw EReadError(Concat(name, " holds what could not be saved again: ", error.what()));
  }
  return root;
}

std::unique_ptr<TForm> TFormDocument::Read(const std::string& bytes, const std::string& name) {
  auto root = std::make_unique<TForm>(nullptr);
  root->SetDesigner(&FHook);
  TStringStream stream(bytes);
  ReadComponentFile(stream, root.get(), name, &FKeeper);
  return root;
}

void TFormDocument::Show(std::unique_ptr<TForm> root) {
  if (FRoot) Tell(OnRootGoing);
  Take(std::move(root));
}

void TFormDocument::Take(std::unique_ptr<TForm> root) {
  FRoot = std::move(root);
  FRootName = FRoot->Name();
  FLinks.Begin(*FRoot);
  FLinks.Note(*FRoot, Others());
  Tell(OnRootMade);
}

std::string TFormDocument::State() const {
  TStringStream stream;
  WriteComponentBinary(stream, FRoot.get());
  return stream.DataString();
}

std::string TFormDocument::Text() const { return TextOf(*FRoot); }

void TFormDocument::New(const std::string& formName) {
  constexpr const char* place =
      "  Left = 40\n  Top = 30\n  ClientHeight = 300\n  ClientWidth = 420\n";
  Show(Read(Concat("object ", formName, ": T", formName, "\n  Caption = ", "'", formName, "'\n",
                   place, "end\n"),
            {}));
  FFileName.clear();
  FHistory.Reset(State());
  Tell(OnChange);
}

void TFormDocument::Load(const std::string& fileName) {
  Show(ReadForm(ReadFile(fileName), fileName));
  FFileName = fileName;
  FFileTime = TimeOf(fileName);
  FHistory.Reset(State());
  Tell(OnChange);
}

void TFormDocument::LoadAutosaved(const std::string& fileName) {
  Show(ReadForm(ReadFile(AutosaveName(fileName)), fileName));
  FFileTime = TimeOf(fileName);
  (FFileTime == 0 ? FCopyName : FFileName) = fileName;
  FHistory.Reset(State());
  FHistory.ForgetClean();
  FAutosaved = FHistory.Present();
  Tell(OnChange);
}

void TFormDocument::Save(const std::string& fileName) {
  ReplaceWholeFile(fileName, Text());
  DiscardAutosave();
  FFileName = fileName;
  FFileTime = TimeOf(fileName);
  FHistory.MarkClean();
  Tell(OnChange);
}

void TFormDocument::Paste(const std::string& text, TWinControl& parent,
                          const std::function<void(TComponent*)>& made) {
  TStringStream stream(text), binary, again;
  // Names that no form file could hold are refused before anything is there.
  ObjectTextToBinary(stream, binary);
  binary.SetPosition(0);
  ObjectBinaryToText(binary, again);
  stream.SetPosition(0);
  ReadComponentsInto(stream, FRoot.get(), &parent, made, &FKeeper);
}

bool TFormDocument::ChangedOnDisk() const {
  return !FFileName.empty() && TimeOf(FFileName) != FFileTime;
}

void TFormDocument::StayApart() {
  FFileTime = TimeOf(FFileName);
  FHistory.ForgetClean();
  Tell(OnChange);
}

// Other forms.

void TFormDocument::FollowOthers() {
  if (!FRoot || !FLinks.Resolve(*FRoot, Others())) return;
  std::string state = State();
  if (state == FHistory.Present()) return;
  FHistory.Replace(std::move(state));
  Tell(OnChange);
}

void TFormDocument::TakeNamesOf(const TComponent& otherRoot) {
  FLinks.TakeNames(*FRoot, otherRoot);
}

// Former states.

bool TFormDocument::IsFresh() const {
  return FFileName.empty() && !Modified() && !CanUndo() && !CanRedo();
}

void TFormDocument::NameClass() {
  const std::string& name = FRoot->Name();
  std::string& className = FRoot->Keep().ClassName;
  if (!FRootName.empty() && !name.empty() && className == "T" + FRootName) className = "T" + name;
  FRootName = name;
}

void TFormDocument::Changed(const std::string& key) {
  NameClass();
  FLinks.Note(*FRoot, Others());
  FHistory.Add(State(), key);
  Tell(OnChange);
}

void TFormDocument::Restore(const std::string& state) {
  // A class of which one instance may exist would refuse a second form beside the first.
  Tell(OnRootGoing);
  FRoot.reset();
  {
    const vcl::TSetFor quiet(FQuiet, true);
    Take(Read(state, {}));
  }
  Tell(OnChange);
}

void TFormDocument::Undo() {
  if (CanUndo()) Restore(FHistory.Undo());
}

void TFormDocument::Redo() {
  if (CanRedo()) Restore(FHistory.Redo());
}

// The copy for the case that the program is killed.

std::string TFormDocument::AutosaveName(const std::string& fileName) { return fileName + "~auto"; }

bool TFormDocument::HasAutosave(const std::string& fileName) {
  const ULONGLONG copy = TimeOf(AutosaveName(fileName));
  return copy != 0 && copy >= TimeOf(fileName);
}

void TFormDocument::Autosave() {
  if (!Modified() || CopyOf().empty() || FAutosaved == FHistory.Present()) return;
  // The settings' folder, where forms without a file have their copies, comes with the first.
  if (FFileName.empty()) ForceDirectories(ExtractFileDir(FCopyName));
  ReplaceWholeFile(AutosaveName(CopyOf()), Text());
  FAutosaved = FHistory.Present();
}

void TFormDocument::DiscardAutosave() {
  FAutosaved.clear();
  if (!CopyOf().empty()) DeleteFile(AutosaveName(CopyOf()));
}

}  // namespace ide
