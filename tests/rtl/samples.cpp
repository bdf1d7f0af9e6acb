#include <gmock/gmock.h>

#include "tests/rtl/samples.h"

using namespace vcl;

namespace samples {

int TPart::Alive = 0;
std::vector<std::string> TPart::LoadedNames;

std::optional<std::string> CodeToIdent(std::int64_t code) {
  if (code == coFirst) return "coFirst";
  if (code == coNone) return "coNone";
  return std::nullopt;
}

std::optional<std::int64_t> IdentToCode(std::string_view ident) {
  if (SameText(ident, "coFirst")) return coFirst;
  if (SameText(ident, "coNone")) return coNone;
  return std::nullopt;
}

const TClass& TStyle::Class() {
  static const TClass info = Describe<TStyle, TPersistent>(
      "TStyle", "samples",
      {
          Property<&TStyle::Size, &TStyle::SetSize>("Size").Default(8),
          Property<&TStyle::Color, &TStyle::SetColor>("Color"),
      });
  return info;
}

void TStyle::DefineProperties(TFiler& filer) {
  TPersistent::DefineProperties(filer);
  filer.DefineBinaryProperty(
      "Data", [this](TStream& stream) { Blob = stream.ReadRest(); },
      [this](TStream& stream) { stream.WriteText(Blob); }, !Blob.empty());
}

const TClass& TPartItem::Class() {
  static const TClass info = Describe<TPartItem, TCollectionItem>(
      "TPartItem", "samples",
      {
          Property<&TPartItem::Title, &TPartItem::SetTitle>("Title").Default(""),
          Property<&TPartItem::Link, &TPartItem::SetLink>("Link"),
          ReadOnly<&TPartItem::Style>("Style"),
          Event<&TPartItem::OnPick>("OnPick"),
      });
  return info;
}

void TPartItem::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TPartItem*>(source);
  if (!other) return TCollectionItem::Assign(source);
  SetTitle(other->Title());
}

const TClass& TPart::Class() {
  static const TClass info = Describe<TPart, TComponent>(
      "TPart", "samples",
      {
          Property<&TPart::Count, &TPart::SetCount>("Count").Default(0),
          Property<&TPart::Active, &TPart::SetActive>("Active").Default(true),
          Property<&TPart::Ratio, &TPart::SetRatio>("Ratio").Default(1),
          Property<&TPart::Caption, &TPart::SetCaption>("Caption").Type("TCaption").Default(""),
          Property<&TPart::Mask, &TPart::SetMask>("Mask").Default(U'\0'),
          Property<&TPart::Shape, &TPart::SetShape>("Shape").Default(shRound),
          Property<&TPart::Shapes, &TPart::SetShapes>("Shapes").Default(TSet<TShape>{shRound}),
          Property<&TPart::Code, &TPart::SetCode>("Code").Default(coNone),
          Property<&TPart::Color, &TPart::SetColor>("Color").Default(clBtnFace),
          Property<&TPart::Big, &TPart::SetBig>("Big").Default(std::int64_t{0}),
          Property<&TPart::Link, &TPart::SetLink>("Link"),
          Property<&TPart::AnyLink, &TPart::SetAnyLink>("AnyLink"),
          ReadOnly<&TPart::Style>("Style"),
          ReadOnly<&TPart::Lines>("Lines"),
          ReadOnly<&TPart::Items>("Items"),
          Event<&TPart::OnClick>("OnClick"),
          Event<&TPart::OnKey>("OnKey"),
      });
  return info;
}

TPart::TPart(TComponent* owner) : TComponent(owner) { ++Alive; }

TPart::~TPart() {
  AnnounceEnd();
  --Alive;
  SetParentComponent(nullptr);
  for (TPart* part : FInside) part->FParent = nullptr;
}

void TPart::SetCount(int count) {
  if (count < 0) throw EPropertyError("A count is never negative: " + IntToStr(count));
  FCount = count;
}

void TPart::SetLink(TPart* link) {
  FLink = link;
  if (link) link->FreeNotification(this);
}

void TPart::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FLink) FLink = nullptr;
  if (operation == opRemove && component == FAnyLink) FAnyLink = nullptr;
}

void TPart::SetParentComponent(TComponent* parent) {
  if (FParent) std::erase(FParent->FInside, this);
  FParent = dynamic_cast<TPart*>(parent);
  if (FParent) FParent->FInside.push_back(this);
}

void TPart::GetChildren(const std::function<void(TComponent*)>& each, TComponent*) {
  for (TPart* part : FInside) each(part);
}

void TPart::SetChildOrder(TComponent* child, int order) {
  auto* part = static_cast<TPart*>(child);
  part->Order = order;
  std::erase(FInside, part);
  FInside.insert(FInside.begin() + std::min<std::ptrdiff_t>(order, std::ssize(FInside)), part);
}

void TPart::Loaded() {
  TComponent::Loaded();
  LoadedNames.push_back(Name());
}

const TClass& TOther::Class() {
  static const TClass info = Describe<TOther, TComponent>("TOther", "samples", {});
  return info;
}

const TClass& TSampleForm::Class() {
  static const TClass info =
      Describe<TSampleForm, TPart>("TSampleForm", "samples",
                                   {
                                       Field<&TSampleForm::Part1>("Part1"),
                                       Field<&TSampleForm::Other1>("Other1"),
                                       Method<&TSampleForm::PartClick>("PartClick"),
                                       Method<&TSampleForm::PartKey>("PartKey"),
                                   });
  return info;
}

void TSampleForm::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  TPart::GetChildren(each, root);
  for (int i = 0; i < ComponentCount(); ++i) {
    if (!Components(i)->HasParent()) each(Components(i));
  }
}

TSampleTest::TSampleTest() {
  RegisterClasses({&TPart::Class(), &TOther::Class(), &TSampleForm::Class()});
  TPart::LoadedNames.clear();
}

TSampleTest::~TSampleTest() {
  EXPECT_EQ(TPart::Alive, 0);
  for (const TClass* each : {&TPart::Class(), &TOther::Class(), &TSampleForm::Class()}) {
    UnRegisterClass(*each);
  }
}

std::string ToBinary(TComponent& root) {
  TStringStream stream;
  WriteComponentBinary(stream, &root);
  return stream.DataString();
}

std::string TextToBinary(const std::string& text) {
  TStringStream source(text);
  TStringStream binary;
  ObjectTextToBinary(source, binary);
  return binary.DataString();
}

std::string BinaryToText(const std::string& binary) {
  TStringStream source(binary);
  TStringStream text;
  ObjectBinaryToText(source, text);
  return text.DataString();
}

}  // namespace samples
