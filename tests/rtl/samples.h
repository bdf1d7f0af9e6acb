// Components with a property of every kind, and a form for them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/support/texts.h"

namespace samples {

enum TShape { shRound, shSquare, shStar };

enum TCode : std::int32_t { coNone = 0, coFirst = -1 };
std::optional<std::string> CodeToIdent(std::int64_t code);
std::optional<std::int64_t> IdentToCode(std::string_view ident);

}  // namespace samples

namespace vcl {
template <>
inline constexpr TEnumText EnumText<samples::TShape>{"TShape", "shRound shSquare shStar",
                                                     "TShapes"};
template <>
inline constexpr TIntegerText IntegerText<samples::TCode>{"TCode", &samples::CodeToIdent,
                                                          &samples::IdentToCode};
}  // namespace vcl

namespace samples {

class TPart;

using TKeyEvent = vcl::TEvent<vcl::TObject*, int&>;

class TStyle : public vcl::TPersistent {
 public:
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  int Size() const { return FSize; }
  void SetSize(int size) { FSize = size; }
  vcl::TColor Color() const { return FColor; }
  void SetColor(vcl::TColor color) { FColor = color; }
  std::string Blob;

 protected:
  void DefineProperties(vcl::TFiler& filer) override;

 private:
  int FSize = 8;
  vcl::TColor FColor = vcl::clBlack;
};

class TPartItem : public vcl::TCollectionItem {
 public:
  using TCollectionItem::TCollectionItem;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  std::string Title() const { return FTitle; }
  void SetTitle(const std::string& title) { FTitle = title; }
  TPart* Link() const { return FLink; }
  void SetLink(TPart* link) { FLink = link; }
  TStyle* Style() const { return FStyle.get(); }
  void Assign(const vcl::TPersistent* source) override;
  vcl::TNotifyEvent OnPick;

 private:
  std::string FTitle;
  TPart* FLink = nullptr;
  std::unique_ptr<TStyle> FStyle = std::make_unique<TStyle>();
};

/// Shows itself in any part; shows the parts inside it in form files.
class TPart : public vcl::TComponent {
 public:
  explicit TPart(vcl::TComponent* owner);
  ~TPart() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int Count() const { return FCount; }
  /// Raises EPropertyError below 0.
  void SetCount(int count);
  bool Active() const { return FActive; }
  void SetActive(bool active) { FActive = active; }
  double Ratio() const { return FRatio; }
  void SetRatio(double ratio) { FRatio = ratio; }
  std::string Caption() const { return FCaption; }
  void SetCaption(const std::string& caption) { FCaption = caption; }
  char32_t Mask() const { return FMask; }
  void SetMask(char32_t mask) { FMask = mask; }
  TShape Shape() const { return FShape; }
  void SetShape(TShape shape) { FShape = shape; }
  vcl::TSet<TShape> Shapes() const { return FShapes; }
  void SetShapes(vcl::TSet<TShape> shapes) { FShapes = shapes; }
  TCode Code() const { return FCode; }
  void SetCode(TCode code) { FCode = code; }
  vcl::TColor Color() const { return FColor; }
  void SetColor(vcl::TColor color) { FColor = color; }
  std::int64_t Big() const { return FBig; }
  void SetBig(std::int64_t big) { FBig = big; }
  TPart* Link() const { return FLink; }
  void SetLink(TPart* link);
  vcl::TComponent* AnyLink() const { return FAnyLink; }
  void SetAnyLink(vcl::TComponent* link) { FAnyLink = link; }
  TStyle* Style() const { return FStyle.get(); }
  vcl::TStrings* Lines() const { return FLines.get(); }
  vcl::TCollection* Items() const { return FItems.get(); }
  vcl::TNotifyEvent OnClick;
  TKeyEvent OnKey;

  TPart* ParentPart() const { return FParent; }
  int Order = -1;
  vcl::TComponent* GetParentComponent() const override { return FParent; }
  bool HasParent() const override { return true; }
  void SetParentComponent(vcl::TComponent* parent) override;
  void GetChildren(const std::function<void(vcl::TComponent*)>& each,
                   vcl::TComponent* root) override;
  void SetChildOrder(vcl::TComponent* child, int order) override;

  /// How many parts there are.
  static int Alive;
  /// The names in the order in which Loaded is called.
  static std::vector<std::string> LoadedNames;

 protected:
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  int FCount = 0;
  bool FActive = true;
  double FRatio = 1;
  std::string FCaption;
  char32_t FMask = 0;
  TShape FShape = shRound;
  vcl::TSet<TShape> FShapes{shRound};
  TCode FCode = coNone;
  vcl::TColor FColor = vcl::clBtnFace;
  std::int64_t FBig = 0;
  TPart* FLink = nullptr;
  vcl::TComponent* FAnyLink = nullptr;
  TPart* FParent = nullptr;
  std::vector<TPart*> FInside;
  std::unique_ptr<TStyle> FStyle = std::make_unique<TStyle>();
  std::unique_ptr<vcl::TStrings> FLines = std::make_unique<vcl::TStringList>();
  std::unique_ptr<vcl::TCollection> FItems = std::make_unique<vcl::TCollection>(TPartItem::Class());
};

/// Another component, for references of the wrong class.
class TOther : public vcl::TComponent {
 public:
  using TComponent::TComponent;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
};

class TSampleForm : public TPart {
 public:
  using TPart::TPart;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  bool HasParent() const override { return false; }
  void GetChildren(const std::function<void(vcl::TComponent*)>& each,
                   vcl::TComponent* root) override;

  void PartClick(vcl::TObject* sender) { Clicked = sender; }
  void PartKey(vcl::TObject*, int& key) { key = -key; }

  TPart* Part1 = nullptr;
  TOther* Other1 = nullptr;
  vcl::TObject* Clicked = nullptr;
};

/// Registers the classes while it lives, and checks that no part outlives a test.
class TSampleTest {
 public:
  TSampleTest();
  ~TSampleTest();
};

std::string ToBinary(vcl::TComponent& root);
std::string TextToBinary(const std::string& text);
std::string BinaryToText(const std::string& binary);

}  // namespace samples
