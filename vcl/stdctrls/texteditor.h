// TTextEditor: what all controls with a text that the user edits can be asked to do with it.
#pragma once

#include "vcl/rtl/api.h"

namespace vcl {

/// An edit, a memo, or a combo box with an edit inside: the target of the edit actions.
class VCL_API TTextEditor {
 public:
  virtual ~TTextEditor() = default;
  /// True while the user edits the text: it has the focus.
  virtual bool Editing() const = 0;
  virtual bool HasText() const = 0;
  /// True when what the user does may change the text.
  virtual bool CanModify() const = 0;
  /// How much is selected, in UTF-16 units.
  virtual int SelLength() const = 0;
  virtual void SelectAll() = 0;
  /// Deletes what is selected, as the user does.
  virtual void DeleteSelection() = 0;
  virtual void CopyToClipboard() = 0;
  virtual void CutToClipboard() = 0;
  virtual void PasteFromClipboard() = 0;
  virtual bool CanUndo() const = 0;
  virtual void Undo() = 0;

 protected:
  TTextEditor() = default;
  TTextEditor(const TTextEditor&) = default;
  TTextEditor& operator=(const TTextEditor&) = default;
};

}  // namespace vcl
