// TInplaceEdit: an edit that lies over a line or a cell while its value is edited.
#pragma once

#include "vcl/stdctrls/maskedit.h"

namespace vcl {

/// An edit that leaves Enter, Escape, Tab and the arrows to who listens to its keys.
class VCL_API TInplaceEdit : public TCustomMaskEdit {
 public:
  explicit TInplaceEdit(TComponent* owner);

  /// The keyboard has gone to another window, of this program or another.
  TNotifyEvent OnLeave;

 protected:
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
};

}  // namespace vcl
