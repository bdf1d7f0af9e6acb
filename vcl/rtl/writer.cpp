// TWriter: writing components, and the values that objects define themselves.
#include "vcl/rtl/writer.h"

#include <algorithm>
#include <utility>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/writerimpl.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {

template <class Write>
void TWriter::TImpl::Change(const Write& write) {
  if (Busy) return write(Output);
  {
    const TSetFor busy(Busy, true);
    Output = {};
    KeptLeft.clear();
    write(Output);
  }
  Stream.WriteText(Output.Bytes());
}

TWriter::TWriter(TStream& stream) : FImpl(std::make_unique<TImpl>(*this, stream)) {}

TWriter::~TWriter() = default;

void TWriter::SetRootClassName(std::string name) { FImpl->RootClassName = std::move(name); }

void TWriter::SetAncestry(TFormAncestry ancestry) { FImpl->Ancestry = std::move(ancestry); }

void TWriter::WriteRootComponent(TComponent* root) { WriteComponent(root, root); }

void TWriter::WriteComponent(TComponent* component, TComponent* root) {
  FImpl->Root = FImpl->Scope = root;
  FImpl->Change([&](TFormOutput& output) {
    output.WriteSignature();
    FImpl->WriteComponent(component);
  });
}

void TWriter::WriteData(TComponent* component) {
  TComponent* const ancestor = FImpl->Ancestor;
  FImpl->WriteAllProperties(*component, component->Kept(), ancestor,
                            ancestor ? ancestor->Kept() : nullptr);
  FImpl->Output.WriteEnd();
  FImpl->WriteChildren(*component);
  FImpl->Output.WriteEnd();
}

void TWriter::WriteInteger(std::int64_t value) {
  FImpl->Change([&](TFormOutput& output) { output.WriteInteger(value); });
}
void TWriter::WriteBoolean(bool value) {
  FImpl->Change([&](TFormOutput& output) { output.WriteBoolean(value); });
}
void TWriter::WriteFloat(double value) {
  FImpl->Change([&](TFormOutput& output) { output.WriteFloat(value); });
}
void TWriter::WriteString(std::string_view value) {
  FImpl->Change([&](TFormOutput& output) { output.WriteString(value); });
}
void TWriter::WriteIdent(std::string_view ident) {
  FImpl->Change([&](TFormOutput& output) { output.WriteIdent(ident); });
}

void TWriter::WriteChar(char32_t value) {
  const std::string text = Utf8(value);
  if (text.empty()) {
    throw EWriteError(
        Concat(std::to_string(static_cast<std::uint32_t>(value)), " is no character"));
  }
  WriteString(text);
}

void TWriter::WriteListBegin() {
  FImpl->Change([](TFormOutput& output) { output.WriteSort(TValueType::vaList); });
}
void TWriter::WriteListEnd() {
  FImpl->Change([](TFormOutput& output) { output.WriteEnd(); });
}
void TWriter::WriteCollection(TCollection& collection) {
  FImpl->Change([&](TFormOutput&) { FImpl->WriteCollection(collection); });
}

TComponent* TWriter::Root() const { return FImpl->Root; }

void TWriter::TImpl::WriteComponent(TComponent* component, std::optional<int> position,
                                    bool inPlace) {
  const TDepth depth(*this);
  const bool isRoot = component == Root;
  const bool frame = component->Inline() && !isRoot;
  TComponent* ancestor = AncestorOf(*component);
  TFormHeading heading;
  heading.Inherited = ancestor != nullptr;
  heading.Inline = !ancestor && (frame || (component->Kept() && component->Kept()->Inline));
  heading.Position = position;
  heading.ClassName = isRoot && !RootClassName.empty() ? RootClassName : component->FileClassName();
  heading.Name = component->Name();
  const std::size_t start = Output.Bytes().size();
  Output.WriteHeading(heading);
  const std::size_t body = Output.Bytes().size();

  const auto pristine = frame && !ancestor ? MakePristine(*component) : nullptr;
  if (pristine) ancestor = pristine.get();
  const TSetFor descends(Ancestor, ancestor);
  const TSetFor scope(Scope, isRoot || frame ? component : Scope);
  const TSetFor ancestorScope(AncestorScope, isRoot || frame ? ancestor : AncestorScope);
  const TSetFor ancestorRoot(AncestorRoot, isRoot || pristine ? ancestor : AncestorRoot);
  component->Include(csWriting);
  const TAtEnd written([component] { component->Exclude(csWriting); }, component);
  const TSetFor prefix(Prefix, std::string());
  component->WriteState(Self);
  // Nothing differs: the lists of properties and of components are empty.
  const bool same = Output.Bytes().size() == body + 2;
  if (heading.Inherited && inPlace && same) Output.Truncate(start);
}

/// Writes what stands inside, each new or moved one of an inherited component's with its place.
void TWriter::TImpl::WriteChildren(TComponent& component) {
  std::vector<TComponent*> children;
  component.GetChildren([&](TComponent* child) { children.push_back(child); }, Scope);
  TComponent* const ancestor = Ancestor;
  std::vector<std::string> order;
  if (ancestor) order = OrderOf(*ancestor, children);
  for (std::size_t i = 0; i < children.size(); ++i) {
    // What a reader has at this point: what it doesn't know yet comes last.
    auto at = std::ranges::find(order, children[i]->Name());
    const bool stood = at != order.end();
    if (!stood) at = order.insert(at, children[i]->Name());
    const bool moved = ancestor && at - order.begin() > static_cast<std::ptrdiff_t>(i);
    if (moved) std::rotate(order.begin() + static_cast<std::ptrdiff_t>(i), at, at + 1);
    WriteComponent(children[i], moved ? std::optional(static_cast<int>(i)) : std::nullopt,
                   stood && !moved);
  }
  std::string_view kept = component.Kept() ? component.Kept()->Children : std::string_view();
  const TKeptData* before = ancestor ? ancestor->Kept() : nullptr;
  if (before && kept.starts_with(before->Children)) kept.remove_prefix(before->Children.size());
  Output.WriteRaw(kept);
}

TWriter::TImpl::TDepth::TDepth(TImpl& impl) : FImpl(impl) {
  if (impl.Depth >= FormDepthLimit)
    throw EWriteError("Things are nested too deeply for a form file");
  ++impl.Depth;
}

}  // namespace vcl
