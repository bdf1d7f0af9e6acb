// TStandardAction: the base of the actions that bring their work with them.
#pragma once

#include "vcl/actions/actions.h"

namespace vcl {

/// An action that knows what it does, and what it is called until it is given other texts and keys.
/// It is disabled while there is nothing that it could work on.
class VCL_API TStandardAction : public TCustomAction {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  TStandardAction(TComponent* owner, const char* caption, const char* hint,
                  TShortCut shortCut = scNone);
};

}  // namespace vcl
