// TDesignerPart: what the windows and panes beside the form have in common.
#pragma once

#include "vcl/designintf/designer.h"

namespace ide {

/// Shows something of the form that is worked on. Who selects, changes or frees objects of the form
/// tells the parts.
class TDesignerPart {
 public:
  TDesignerPart() = default;
  TDesignerPart(const TDesignerPart&) = delete;
  TDesignerPart& operator=(const TDesignerPart&) = delete;
  virtual ~TDesignerPart() = default;

  /// Another form is worked on; null for none, and before a form is made anew.
  virtual void SetDesigner(vcl::TDesigner* designer) = 0;
  /// Something else has been selected.
  virtual void SelectionChanged() = 0;
  /// The form has changed: shows what looks different now.
  virtual void Refresh() = 0;
};

}  // namespace ide
