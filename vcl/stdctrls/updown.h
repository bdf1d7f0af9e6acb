// TUpDown: two arrows that count, usually for an edit beside them.
#pragma once

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/rangecontrol.h"

namespace vcl {

enum TUDAlignButton { udLeft, udRight };
template <>
inline constexpr TEnumText EnumText<TUDAlignButton>{"TUDAlignButton", "udLeft udRight"};
enum TUDOrientation { udHorizontal, udVertical };
template <>
inline constexpr TEnumText EnumText<TUDOrientation>{"TUDOrientation", "udHorizontal udVertical"};
/// Which of the arrows: the one that counts up or the one that counts down.
enum TUDBtnType { btNext, btPrev };
template <>
inline constexpr TEnumText EnumText<TUDBtnType>{"TUDBtnType", "btNext btPrev"};
/// Sender, and whether the position may change.
using TUDChangingEvent = TEvent<TObject*, bool&>;
/// Sender, the arrow that was clicked.
using TUDClickEvent = TEvent<TObject*, TUDBtnType>;
template <>
inline constexpr TEventText EventText<TUDClickEvent>{
    "TUDClickEvent", "vcl::TObject* sender, vcl::TUDBtnType button"};

/// A pair of arrows. Where it has an associate, such as an edit, it stands at that control's side,
/// its text is the position, what the user types there is the position, and its up and down keys
/// count.
class VCL_API TUpDown : public TRangeControl {
 public:
  explicit TUpDown(TComponent* owner);
  ~TUpDown() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// The number in the associate's text, while that is one within the bounds.
  int Position() const override;
  TUDAlignButton AlignButton() const { return FAlignButton; }
  /// At which side of its associate the control stands.
  void SetAlignButton(TUDAlignButton align);
  bool ArrowKeys() const { return FArrowKeys; }
  /// True: the associate's up and down keys count.
  void SetArrowKeys(bool arrowKeys);
  TWinControl* Associate() const { return FAssociate; }
  /// The control whose text is the position; null for none. Raises EInvalidOperation for one in
  /// another parent.
  void SetAssociate(TWinControl* associate);
  int Increment() const { return FIncrement; }
  /// By how much a click counts. Raises EArgumentOutOfRangeException for less than 1.
  void SetIncrement(int increment);
  TUDOrientation Orientation() const { return FOrientation; }
  /// Whether the arrows point to the sides or up and down.
  void SetOrientation(TUDOrientation orientation);
  bool Thousands() const { return FThousands; }
  /// True: the associate's text has the user's separator between thousands.
  void SetThousands(bool thousands);
  bool Wrap() const { return FWrap; }
  /// True: behind one bound the position goes on at the other.
  void SetWrap(bool wrap) { FWrap = wrap; }

  /// The user is about to change the position.
  TUDChangingEvent OnChanging;
  /// An arrow was clicked, by mouse or by key; the position has changed unless it stands at its
  /// bound.
  TUDClickEvent OnClick;

 protected:
  void SendRange() override;
  void SendPosition() override;
  void Change() override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  void SendAssociate();
  void StandBeside();
  void ShowText();
  int StepFrom(int position, bool up) const;
  void Count(bool up);

  TWinControl* FAssociate = nullptr;
  TUDAlignButton FAlignButton = udRight;
  TUDOrientation FOrientation = udVertical;
  bool FArrowKeys = true;
  bool FThousands = true;
  bool FWrap = false;
  int FIncrement = 1;
};

}  // namespace vcl
