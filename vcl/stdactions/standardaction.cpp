// TStandardAction: what the actions that bring their work publish.
#include "vcl/stdactions/standardaction.h"

#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TStandardAction::Class() {
  // The texts and keys that the action begins with are no defaults: it may have none.
  static const TClass info = Describe<TStandardAction, TCustomAction>(
      "vcl::TStandardAction", "vcl/stdactions/stdactions.h",
      {
          Inherit("Caption").NoDefault(),
          Inherit("Enabled"),
          Inherit("Hint").NoDefault(),
          Inherit("ImageIndex"),
          Inherit("ShortCut").NoDefault(),
          Inherit("Visible"),
      });
  return info;
}

TStandardAction::TStandardAction(TComponent* owner, const char* caption, const char* hint,
                                 TShortCut shortCut)
    : TCustomAction(owner) {
  SetCaption(caption);
  SetHint(hint);
  SetShortCut(shortCut);
}

}  // namespace vcl
