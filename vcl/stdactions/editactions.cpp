// The actions of the edit that has the focus: when they can work, and what they do.
#include "vcl/stdactions/editactions.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"
#include "vcl/transfer/clipboard.h"

namespace vcl {

const TClass& TEditAction::Class() {
  static const TClass info =
      Describe<TEditAction, TStandardAction>("vcl::TEditAction", "vcl/stdactions/stdactions.h", {});
  return info;
}

bool TEditAction::HandlesTarget(const TComponent& target) const {
  const auto* edit = dynamic_cast<const TTextEditor*>(&target);
  return edit && edit->Editing();
}

void TEditAction::UpdateTarget(TComponent* target) {
  SetEnabled(target && Can(dynamic_cast<TTextEditor&>(*target)));
}

void TEditAction::ExecuteTarget(TComponent& target) { Do(dynamic_cast<TTextEditor&>(target)); }

const TClass& TEditCut::Class() {
  static const TClass info =
      Describe<TEditCut, TEditAction>("vcl::TEditCut", "vcl/stdactions/stdactions.h", {});
  return info;
}

TEditCut::TEditCut(TComponent* owner)
    : TEditAction(owner, "Cu&t", "Moves what is selected to the clipboard",
                  vcl::ShortCut('X', {ssCtrl})) {}

bool TEditCut::Can(const TTextEditor& edit) const {
  return edit.CanModify() && edit.SelLength() > 0;
}
void TEditCut::Do(TTextEditor& edit) { edit.CutToClipboard(); }

const TClass& TEditCopy::Class() {
  static const TClass info =
      Describe<TEditCopy, TEditAction>("vcl::TEditCopy", "vcl/stdactions/stdactions.h", {});
  return info;
}

TEditCopy::TEditCopy(TComponent* owner)
    : TEditAction(owner, "&Copy", "Copies what is selected to the clipboard",
                  vcl::ShortCut('C', {ssCtrl})) {}

bool TEditCopy::Can(const TTextEditor& edit) const { return edit.SelLength() > 0; }
void TEditCopy::Do(TTextEditor& edit) { edit.CopyToClipboard(); }

const TClass& TEditPaste::Class() {
  static const TClass info =
      Describe<TEditPaste, TEditAction>("vcl::TEditPaste", "vcl/stdactions/stdactions.h", {});
  return info;
}

TEditPaste::TEditPaste(TComponent* owner)
    : TEditAction(owner, "&Paste", "Puts the clipboard in the place of what is selected",
                  vcl::ShortCut('V', {ssCtrl})) {}

bool TEditPaste::Can(const TTextEditor& edit) const {
  return edit.CanModify() && Clipboard()->Has(dkText);
}
void TEditPaste::Do(TTextEditor& edit) { edit.PasteFromClipboard(); }

const TClass& TEditSelectAll::Class() {
  static const TClass info = Describe<TEditSelectAll, TEditAction>(
      "vcl::TEditSelectAll", "vcl/stdactions/stdactions.h", {});
  return info;
}

TEditSelectAll::TEditSelectAll(TComponent* owner)
    : TEditAction(owner, "Select &all", "Selects the whole text", vcl::ShortCut('A', {ssCtrl})) {}

bool TEditSelectAll::Can(const TTextEditor& edit) const { return edit.HasText(); }
void TEditSelectAll::Do(TTextEditor& edit) { edit.SelectAll(); }

const TClass& TEditUndo::Class() {
  static const TClass info =
      Describe<TEditUndo, TEditAction>("vcl::TEditUndo", "vcl/stdactions/stdactions.h", {});
  return info;
}

TEditUndo::TEditUndo(TComponent* owner)
    : TEditAction(owner, "&Undo", "Takes the last change back", vcl::ShortCut('Z', {ssCtrl})) {}

bool TEditUndo::Can(const TTextEditor& edit) const { return edit.CanUndo(); }
void TEditUndo::Do(TTextEditor& edit) { edit.Undo(); }

const TClass& TEditDelete::Class() {
  static const TClass info =
      Describe<TEditDelete, TEditAction>("vcl::TEditDelete", "vcl/stdactions/stdactions.h", {});
  return info;
}

TEditDelete::TEditDelete(TComponent* owner)
    : TEditAction(owner, "&Delete", "Deletes what is selected", TShortCut(VK_DELETE)) {}

bool TEditDelete::Can(const TTextEditor& edit) const {
  return edit.CanModify() && edit.SelLength() > 0;
}
void TEditDelete::Do(TTextEditor& edit) { edit.DeleteSelection(); }

}  // namespace vcl
