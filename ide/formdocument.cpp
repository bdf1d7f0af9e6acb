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

TFormAncestry TFormDocument::Frames() const {
  return {nullptr, [this](const TComponent& frame) { return FKeeper.Pristine(frame); }};
}

std::string TFormDocument::TextOf(TComponent& root, TComponent* ancestor) const {
  TStringStream stream;
  WriteComponentText(stream, &root, TFormAncestry{ancestor, Frames().MakeFrame});
  return stream.DataString();
}

/// What the ancestors' files alone make; without a hook nobody sees it.
TFormDocument::TRoot TFormDocument::Make(const TFormOrigin& origin, TDesignerHook* hook) {
  TRoot root(origin.Class->Maker().Component(nullptr));
  auto* form = dynamic_cast<TForm*>(root.get());
  hook&& form ? form->SetDesigner(hook) : root->SetDesigning(true);
  for (const TAncestorFile& each : origin.Files) {
    TStringStream stream(each.Bytes);
    ReadComponentFile(stream, root.get(), each.FileName, &FKeeper);
  }
  return root;
}

TFormDocument::TRoot TFormDocument::Read(const std::string& bytes, const std::string& name,
                                         const TFormOrigin& origin) {
  TRoot root = Make(origin, &FHook);
  TStringStream stream(bytes);
  ReadComponentFile(stream, root.get(), name, &FKeeper);
  return root;
}

/// The ancestor alone; null for none.
TFormDocument::TRoot TFormDocument::ReadAncestor(const TFormOrigin& origin) {
  if (origin.Files.empty()) return nullptr;
  // What it holds has been told already.
  const vcl::TSetFor quiet(FQuiet, true);
  return Make(origin, nullptr);
}

/// Shows the form of the bytes. One that could not be saved is not opened.
void TFormDocument::Open(const std::string& bytes, const std::string& name, TFormOrigin origin) {
  const std::string former = std::exchange(FKeeper.Folder, origin.Folder);
  const vcl::TOnFailure stays([&] { FKeeper.Folder = former; });
  TRoot root = Read(bytes, name, origin);
  TRoot ancestor = ReadAncestor(origin);
  try {
    TextOf(*root, ancestor.get());
  } catch (const Exception& error) {
    throw EReadError(Concat(name, " holds what could not be saved again: ", error.what()));
  }
  if (FRoot) Tell(OnRootGoing);
  FOrigin = std::move(origin);
  FAncestor = std::move(ancestor);
  Take(std::move(root));
}

void TFormDocument::Take(TRoot root) {
  FPristine.clear();
  FRoot = std::move(root);
  FStage = std::make_unique<TStage>(*FRoot, FHook);
  FRootName = FRoot->Name();
  FLinks.Begin(*FRoot);
  FLinks.Note(*FRoot, Others());
  Tell(OnRootMade);
}

std::string TFormDocument::State() const {
  TStringStream stream;
  WriteComponentBinary(stream, FRoot.get(), TFormAncestry{FAncestor.get(), Frames().MakeFrame});
  return stream.DataString();
}

std::string TFormDocument::Text() const { return TextOf(*FRoot, FAncestor.get()); }

void TFormDocument::New(const std::string& formName, const TClass& sort) {
  const std::string caption = Concat("  Caption = '", formName, "'\n");
  constexpr const char* place =
      "  Left = 40\n  Top = 30\n  ClientHeight = 300\n  ClientWidth = 420\n";
  OpenNew(Concat("object ", formName, ": T", formName, "\n",
                 &sort == &TForm::Class() ? caption + place : "", "end\n"),
          {}, {&sort, {}, {}});
}

void TFormDocument::NewInherited(const std::string& formName, const std::string& ancestorFile) {
  OpenNew(Concat("inherited ", formName, ": T", formName, "\nend\n"), ancestorFile,
          OriginFrom(ancestorFile));
}

void TFormDocument::OpenNew(const std::string& text, const std::string& name, TFormOrigin origin) {
  Open(text, name, std::move(origin));
  FFileName.clear();
  FHistory.Reset(State());
  Tell(OnChange);
}

void TFormDocument::Load(const std::string& fileName) {
  const std::string bytes = ReadFile(fileName);
  Open(bytes, fileName, OriginOf(fileName, bytes));
  FFileName = fileName;
  FFileTime = TimeOf(fileName);
  FHistory.Reset(State());
  Tell(OnChange);
}

void TFormDocument::LoadAutosaved(const std::string& fileName) {
  const std::string bytes = ReadFile(AutosaveName(fileName));
  Open(bytes, fileName, KeptOrigin(fileName, bytes));
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
  CheckFolder();
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

void TFormDocument::Restore(const std::string& state, bool quiet) {
  // A class of which one instance may exist would refuse a second form beside the first.
  Tell(OnRootGoing);
  FRoot.reset();
  {
    const vcl::TSetFor told(FQuiet, quiet);
    Take(Read(state, FFileName, FOrigin));
  }
  Tell(OnChange);
}

void TFormDocument::Undo() {
  if (CanUndo()) Restore(FHistory.Undo(), true);
}

void TFormDocument::Redo() {
  if (CanRedo()) Restore(FHistory.Redo(), true);
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
  if (FFileName.empty()) KeepOrigin(FCopyName, {FOrigin.Class, FOrigin.Files, Folder()});
  FAutosaved = FHistory.Present();
}

void TFormDocument::DiscardAutosave() {
  FAutosaved.clear();
  if (CopyOf().empty()) return;
  DeleteFile(AutosaveName(CopyOf()));
  ForgetOrigin(CopyOf());
}

}  // namespace ide
