// TDropTarget: a control that takes what is dragged from any program.
#pragma once

#include <memory>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/strings.h"
#include "vcl/transfer/dropeffect.h"
#include "vcl/transfer/transferdata.h"

struct IDropTarget;

namespace vcl {

class TComDropTarget;

/// What is over the control: its data, what its source allows, which keys and buttons are down,
/// and where, in the control's inner pixels.
struct TDropInfo {
  const TTransferData& Data;
  TDropEffects Allowed;
  TShiftState Shift;
  TPoint Position;
};

/// The effect that is offered, which the handler may change; one that is not allowed is none.
using TDropInfoEvent = TEvent<TObject*, const TDropInfo&, TDropEffect&>;
template <>
inline constexpr TEventText EventText<TDropInfoEvent>{
    "TDropInfoEvent", "vcl::TObject* sender, const vcl::TDropInfo& info, vcl::TDropEffect& effect"};

/// Lets a control, or a form, take data that is dragged from this program or another (OLE), and
/// follows the control's window when it is made anew. Its events come only for data of one of the
/// Kinds or Formats. The effect offered is what the keys say (Ctrl copies, Shift moves, both link),
/// without them the first that the source allows of copying, moving and linking. Handlers may free
/// this component, the control or the form.
class VCL_API TDropTarget : public TComponent {
 public:
  explicit TDropTarget(TComponent* owner);
  ~TDropTarget() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TWinControl* Control() const;
  /// The control on which data may be dropped. Raises EInvalidOperation for one that another drop
  /// target has.
  void SetControl(TWinControl* control);
  TDataKinds Kinds() const { return FKinds; }
  /// What the data may be.
  void SetKinds(TDataKinds kinds) { FKinds = kinds; }
  TStrings* Formats() const { return FFormats.get(); }
  /// The names of formats of one's own that are taken, too (RegisterTransferFormat).
  void SetFormats(const TStrings* formats) { FFormats->Assign(formats); }
  bool Enabled() const { return FEnabled; }
  /// False: nothing is taken.
  void SetEnabled(bool enabled) { FEnabled = enabled; }
  /// What the system calls, as long as this component is there.
  IDropTarget* Interface() const;

  /// Data comes over the control.
  TDropInfoEvent OnDragEnter;
  /// Data is moved over the control, or a key is pressed meanwhile.
  TDropInfoEvent OnDragOver;
  /// Data is dropped on the control; the effect says what the handler has done with it.
  TDropInfoEvent OnDrop;
  /// Data leaves the control without having been dropped.
  TNotifyEvent OnDragLeave;

 protected:
  void Notification(TComponent* component, TOperation operation) override;

 private:
  friend class TComDropTarget;
  class TWindow;
  using TData = std::shared_ptr<const TTransferData>;
  TDropEffect Enter(TData data, DWORD keys, TPoint screen, TDropEffects allowed);
  TDropEffect Over(DWORD keys, TPoint screen, TDropEffects allowed);
  TDropEffect Leave();
  TDropEffect Drop(TData data, DWORD keys, TPoint screen, TDropEffects allowed);
  TDropEffect Ask(const TDropInfoEvent& event, DWORD keys, TPoint screen, TDropEffects allowed);
  bool Takes(const TTransferData& data) const;

  std::unique_ptr<TStringList> FFormats;
  std::unique_ptr<TWindow> FWindow;
  TDataKinds FKinds{dkText, dkHtml, dkPicture, dkFiles, dkComponent};
  bool FEnabled = true;
  TData FData;                   // Of the drag over the control that is taken; else null.
  TDropEffect FEffect = deNone;  // Its effect, as last told.
};

}  // namespace vcl
