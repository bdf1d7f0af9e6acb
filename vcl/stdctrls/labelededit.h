// TCustomLabeledEdit and TLabeledEdit: an edit with its label.
#pragma once

#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/label.h"

namespace vcl {

class TCustomLabeledEdit;

/// The label of a labelled edit, whose part it is: the edit owns it, puts it into its place, and
/// form files keep what it publishes under the edit's name for it ("EditLabel.Caption").
class VCL_API TBoundLabel : public TCustomLabel {
 public:
  explicit TBoundLabel(TCustomLabeledEdit* edit);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void Resize() override;
};

/// On which side of its edit a label stands.
enum TLabelPosition { lpAbove, lpBelow, lpLeft, lpRight };
template <>
inline constexpr TEnumText EnumText<TLabelPosition>{"TLabelPosition",
                                                    "lpAbove lpBelow lpLeft lpRight"};

/// An edit that brings its label, which goes where the edit goes, is hidden and disabled with it,
/// and whose accelerator focuses it.
class VCL_API TCustomLabeledEdit : public TCustomEdit {
 public:
  explicit TCustomLabeledEdit(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The label; null once somebody has freed it.
  TBoundLabel* EditLabel() const { return FLabel; }
  TLabelPosition LabelPosition() const { return FPosition; }
  /// On which side of the edit its label stands.
  void SetLabelPosition(TLabelPosition position);
  int LabelSpacing() const { return FSpacing; }
  /// How far the label is from the edit, in pixels.
  void SetLabelSpacing(int spacing);

  void SetParent(TWinControl* parent) override;
  void SetBounds(int left, int top, int width, int height) override;
  void SetVisible(bool visible) override;
  /// The label of an edit that is being designed is called as the edit until it is given a caption.
  void SetName(const std::string& name) override;

 protected:
  void ChangeScale(int m, int d) override;
  void Dispatch(TMessage& message) override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  friend class TBoundLabel;
  void PlaceLabel();

  TBoundLabel* FLabel = nullptr;
  TLabelPosition FPosition = lpAbove;
  int FSpacing = 3;
};

/// An edit with its label, for forms.
class VCL_API TLabeledEdit : public TCustomLabeledEdit {
 public:
  explicit TLabeledEdit(TComponent* owner) : TCustomLabeledEdit(owner) {
    HearOnlyAsked<TLabeledEdit>();
  }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
