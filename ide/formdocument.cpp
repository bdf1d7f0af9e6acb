// TFormDocument: reading and writing the form, its former states, and the copy for a killed
// designer.
#include "ide/formdocument.h"

#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/properties.h"
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

std::string TFormDocument::TextOf(TForm& root, TForm* ancestor) const {
  TStringStream stream;
  WriteComponentText(stream, &root, TFormAncestry{ancestor, Frames().MakeFrame});
  return stream.DataString();
}

void TFormDocument::ReadChain(const TChain& chain, TForm& root) {
  for (const TAncestorFile& each : chain) {
    TStringStream stream(each.Bytes);
    ReadComponentFile(stream, &root, each.FileName, &FKeeper);
  }
}

std::unique_ptr<TForm> TFormDocument::Read(const std::string& bytes, const std::string& name,
                                           const TChain& chain) {
  auto root = std::make_unique<TForm>(nullptr);
  root->SetDesigner(&FHook);
  ReadChain(chain, *root);
  TStringStream stream(bytes);
  ReadComponentFile(stream, root.get(), name, &FKeeper);
  return root;
}

/// The ancestor alone, which nobody sees: null for none.
std::unique_ptr<TForm> TFormDocument::ReadAncestor(const TChain& chain) {
  if (chain.empty()) return nullptr;
  // What it holds has been told already.
  const vcl::TSetFor quiet(FQuiet, true);
  auto ancestor = std::make_unique<TForm>(nullptr);
  ancestor->SetDesigning(true);
  ReadChain(chain, *ancestor);
  return ancestor;
}

/// Shows the form of the bytes. One that could not be saved is not opened.
void TFormDocument::Open(const std::string& bytes, const std::string& name, TChain chain,
                         const std::string& folder) {
  const std::string former = std::exchange(FKeeper.Folder, folder);
  const vcl::TOnFailure stays([&] { FKeeper.Folder = former; });
  auto root = Read(bytes, name, chain);
  auto ancestor = ReadAncestor(chain);
  try {
    TextOf(*root, ancestor.get());
  } catch (const Exception& error) {
    throw EReadError(Concat(name, " holds what could not be saved again: ", error.what()));
  }
  if (FRoot) Tell(OnRootGoing);
  FChain = std::move(chain);
  FAncestor = std::move(ancestor);
  Take(std::move(root));
}

void TFormDocument::OpenFile(const std::string& bytes, const std::string& fileName) {
  Open(bytes, fileName, AncestorFiles(fileName, bytes), ExtractFileDir(fileName));
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
  WriteComponentBinary(stream, FRoot.get(), Frames());
  return stream.DataString();
}

std::string TFormDocument::Text() const { return TextOf(*FRoot, FAncestor.get()); }

void TFormDocument::New(const std::string& formName) {
  constexpr const char* place =
      "  Left = 40\n  Top = 30\n  ClientHeight = 300\n  ClientWidth = 420\n";
  Open(Concat("object ", formName, ": T", formName, "\n  Caption = ", "'", formName, "'\n", place,
              "end\n"),
       {}, {}, {});
  FFileName.clear();
  FHistory.Reset(State());
  Tell(OnChange);
}

void TFormDocument::NewInherited(const std::string& formName, const std::string& ancestorFile) {
  const std::string bytes = ReadFile(ancestorFile);
  TChain chain = AncestorFiles(ancestorFile, bytes);
  chain.push_back({FormClassOf(bytes), ancestorFile, bytes});
  Open(Concat("inherited ", formName, ": T", formName, "\nend\n"), ancestorFile, std::move(chain),
       ExtractFileDir(ancestorFile));
  FFileName.clear();
  FHistory.Reset(State());
  Tell(OnChange);
}

void TFormDocument::Load(const std::string& fileName) {
  OpenFile(ReadFile(fileName), fileName);
  FFileName = fileName;
  FFileTime = TimeOf(fileName);
  FHistory.Reset(State());
  Tell(OnChange);
}

void TFormDocument::LoadAutosaved(const std::string& fileName) {
  OpenFile(ReadFile(AutosaveName(fileName)), fileName);
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

// The ancestor.

namespace {

/// What stands in `there` for the object wanted, which is `here` or a part of it.
const TObject* Counterpart(const TObject& here, const TObject& there, const TObject& wanted) {
  if (&here.ClassType() != &there.ClassType()) return nullptr;
  if (&here == &wanted) return &there;
  for (const TPropInfo* prop : here.ClassType().Published()) {
    if (prop->IsEvent() || !prop->Type->ClassOf) continue;
    const TObject* inner = std::get<TObject*>(prop->Get(here));
    const TObject* other = std::get<TObject*>(prop->Get(there));
    if (!inner || !other || dynamic_cast<const TComponent*>(inner)) continue;
    if (const TObject* found = Counterpart(*inner, *other, wanted)) return found;
  }
  return nullptr;
}

}  // namespace

const TObject* TFormDocument::AncestorOf(const TObject& object) const {
  if (!FAncestor) return nullptr;
  const auto* component = dynamic_cast<const TComponent*>(&object);
  if (!component || component == FRoot.get()) {
    if (const TObject* found = Counterpart(*FRoot, *FAncestor, object)) return found;
  }
  for (int i = 0; i < FRoot->ComponentCount(); ++i) {
    const TComponent& here = *FRoot->Components(i);
    if (component && component != &here) continue;
    const TComponent* there = FAncestor->FindComponent(here.Name());
    const TObject* found = there ? Counterpart(here, *there, object) : nullptr;
    if (found) return found;
  }
  return nullptr;
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
