// TWriter: writing components, and the values that objects define themselves.
#include "vcl/rtl/writer.h"

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

void TWriter::WriteRootComponent(TComponent* root) { WriteComponent(root, root); }

void TWriter::WriteComponent(TComponent* component, TComponent* root) {
  FImpl->Root = root;
  FImpl->Change([&](TFormOutput& output) {
    output.WriteSignature();
    FImpl->WriteComponent(component);
  });
}

void TWriter::WriteData(TComponent* component) {
  FImpl->WriteAllProperties(*component, component->Kept());
  FImpl->Output.WriteEnd();
  component->GetChildren([&](TComponent* child) { FImpl->WriteComponent(child); }, FImpl->Root);
  if (component->Kept()) FImpl->Output.WriteRaw(component->Kept()->Children);
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

void TWriter::TImpl::WriteComponent(TComponent* component) {
  const TDepth depth(*this);
  const bool renamed = component == Root && !RootClassName.empty();
  TFormHeading heading;
  heading.ClassName = renamed ? RootClassName : component->FileClassName();
  heading.Name = component->Name();
  Output.WriteHeading(heading);
  component->Include(csWriting);
  const TAtEnd written([component] { component->Exclude(csWriting); }, component);
  const TSetFor prefix(Prefix, std::string());
  component->WriteState(Self);
}

TWriter::TImpl::TDepth::TDepth(TImpl& impl) : FImpl(impl) {
  if (impl.Depth >= FormDepthLimit)
    throw EWriteError("Things are nested too deeply for a form file");
  ++impl.Depth;
}

}  // namespace vcl
