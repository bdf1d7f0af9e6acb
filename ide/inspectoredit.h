// TInspectorEdit: the edit that lies over the value of an inspector's selected line.
#pragma once

#include "vcl/stdctrls/edit.h"

namespace ide {

/// An edit that leaves Enter, Escape, Tab and the arrows to who listens to its keys.
class TInspectorEdit : public vcl::TCustomEdit {
 public:
  explicit TInspectorEdit(vcl::TComponent* owner);

  /// The keyboard has gone to another window, of this program or another.
  vcl::TNotifyEvent OnLeave;

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void Dispatch(vcl::TMessage& message) override;
};

}  // namespace ide
