// TReader: reading a form file as a whole, its values, and undoing everything after an error.
#include "vcl/rtl/reader.h"

#include <utility>

#include "vcl/rtl/private/readerimpl.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

template <class Read>
void TReader::TImpl::AllOrNothing(const Read& read) {
  const TAtEnd forget([this] { Forget(); });
  const TOnFailure undo([this] { Undo(); });
  read();
}

TReader::TReader(TStream& stream) : FImpl(std::make_unique<TImpl>(*this, stream)) {}

TReader::~TReader() = default;

void TReader::SetLineOf(std::function<int(std::int64_t offset)> lineOf) {
  FImpl->Input.LineOf = std::move(lineOf);
}

TComponent* TReader::ReadRootComponent(TComponent* root) {
  TComponent* read = nullptr;
  FImpl->AllOrNothing([&] { read = FImpl->ReadRoot(root, false); });
  return read;
}

TComponent* TReader::ReadRootFile(TComponent* root) {
  TComponent* read = nullptr;
  FImpl->AllOrNothing([&] { read = FImpl->ReadRoot(root, true); });
  return read;
}

void TReader::ReadComponents(TComponent* owner, TComponent* parent,
                             const std::function<void(TComponent*)>& made) {
  std::vector<TComponent*> outermost;
  FImpl->AllOrNothing([&] { FImpl->ReadAll(owner, parent, outermost); });
  for (TComponent* component : outermost) made(component);
}

void TReader::ReadData(TComponent* component) {
  FImpl->ReadProperties(*component);
  FImpl->ReadChildren(component);
}

TValueType TReader::NextValue() { return FImpl->Input.NextValue(); }
std::int64_t TReader::ReadInteger() { return FImpl->Input.ReadInteger(); }
bool TReader::ReadBoolean() { return FImpl->Input.ReadBoolean(); }
double TReader::ReadFloat() { return FImpl->Input.ReadFloat(); }
std::string TReader::ReadString() { return FImpl->Input.ReadString(); }
std::string TReader::ReadIdent() { return FImpl->Input.ReadIdent(); }

char32_t TReader::ReadChar() {
  const std::string text = ReadString();
  const auto character = OnlyCharacter(text);
  if (!character) FImpl->Input.Fail(Concat("'", Shown(text), "' is not one character"));
  return *character;
}

void TReader::ReadListBegin() { FImpl->Input.Take(TValueType::vaList); }
void TReader::ReadListEnd() { FImpl->Input.Take(TValueType::vaNull); }
bool TReader::EndOfList() { return FImpl->Input.EndOfList(); }
void TReader::ReadCollection(TCollection& collection) { FImpl->ReadOwnCollection(collection); }
TComponent* TReader::Root() const { return FImpl->Root; }
const std::string& TReader::RootClassName() const { return FImpl->RootClassName; }

/// Frees what was made, last one first, and takes the state of reading from what was there before.
void TReader::TImpl::Undo() {
  if (!Parts.empty() && !Parts.front().Watch.Gone()) {
    for (const TFieldInfo* field : Fields) field->Assign(*Root, nullptr);
  }
  for (; !Parts.empty(); Parts.pop_back()) {
    const TReaderPart& part = Parts.back();
    if (part.Watch.Gone()) continue;
    part.Component->Exclude(csLoading);
    part.Component->Exclude(csReading);
    if (part.Component == Root && !part.Made) part.Component->PutName(OldName);
    if (part.Made) delete part.Component;
  }
}

void TReader::TImpl::Forget() {
  Part = nullptr;
  Steps.clear();
  Fixups.clear();
  Fields.clear();
  Named.clear();
  Parts.clear();
  Input.Context.clear();
}

TComponent* TReader::TImpl::ReadRoot(TComponent* root, bool toTheEnd) {
  Input.ReadSignature();
  const TFormHeading heading = Input.ReadHeading();
  if (heading.Inline) Input.Fail("the root stands inside nothing: it can't be inline");
  RootClassName = heading.ClassName;
  RootName = heading.Name;
  if (root) OldName = root->Name();
  Root = root ? root : Make(heading, nullptr);
  Enter(Root, !root);
  NameRoot(Root, heading.Name);
  Input.Context = heading.Name;
  if (Keeper) Root->Keep().ClassName = heading.ClassName;
  Scope = Owner = Parent = Root;
  ReadBody(Root);
  if (toTheEnd && !Input.AtEnd()) Input.FailAt(Input.Position(), "more stands behind the root");
  ResolveReferences(true);
  Input.Finish();
  TReaderPart& part = Parts.front();
  CallLoaded();
  return part.Watch.Gone() ? nullptr : Root;
}

void TReader::TImpl::ReadAll(TComponent* owner, TComponent* parent,
                             std::vector<TComponent*>& outermost) {
  Root = Scope = Owner = owner;
  Parent = parent;
  Pasting = true;
  while (!Input.AtEnd() && !Input.EndOfList()) {
    Input.ReadSignature();
    outermost.push_back(ReadComponent());
  }
  if (!Input.AtEnd()) Input.Take(TValueType::vaNull);
  ResolveReferences(false);
  Input.Finish();
  CallLoaded();
}

void TReader::TImpl::CallLoaded() {
  for (TReaderPart& part : Parts) {
    // Any of them may free another.
    if (part.Watch.Gone()) continue;
    try {
      part.Component->Loaded();
    } catch (const Exception& error) {
      if (!Keeper) throw;
      Keeper->Report(Concat(part.Component->Name(), ": ", error.what()));
    }
  }
}

}  // namespace vcl
