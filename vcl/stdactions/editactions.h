// The actions of the edit that has the focus.
#pragma once

#include "vcl/stdactions/standardaction.h"
#include "vcl/stdctrls/texteditor.h"

namespace vcl {

/// The base of the actions of edits, memos and the edits inside combo boxes: their target is the
/// one that has the focus.
class VCL_API TEditAction : public TStandardAction {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  bool HandlesTarget(const TComponent& target) const override;
  void UpdateTarget(TComponent* target) override;
  void ExecuteTarget(TComponent& target) override;

 protected:
  using TStandardAction::TStandardAction;
  /// True when the action has something to do in the edit.
  virtual bool Can(const TTextEditor& edit) const = 0;
  virtual void Do(TTextEditor& edit) = 0;
};

/// Moves what is selected to the clipboard.
class VCL_API TEditCut : public TEditAction {
 public:
  explicit TEditCut(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TTextEditor& edit) const override;
  void Do(TTextEditor& edit) override;
};

/// Copies what is selected to the clipboard.
class VCL_API TEditCopy : public TEditAction {
 public:
  explicit TEditCopy(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TTextEditor& edit) const override;
  void Do(TTextEditor& edit) override;
};

/// Puts the clipboard's text in the place of what is selected.
class VCL_API TEditPaste : public TEditAction {
 public:
  explicit TEditPaste(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TTextEditor& edit) const override;
  void Do(TTextEditor& edit) override;
};

/// Selects the whole text.
class VCL_API TEditSelectAll : public TEditAction {
 public:
  explicit TEditSelectAll(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TTextEditor& edit) const override;
  void Do(TTextEditor& edit) override;
};

/// Takes the last change back.
class VCL_API TEditUndo : public TEditAction {
 public:
  explicit TEditUndo(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TTextEditor& edit) const override;
  void Do(TTextEditor& edit) override;
};

/// Deletes what is selected.
class VCL_API TEditDelete : public TEditAction {
 public:
  explicit TEditDelete(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TTextEditor& edit) const override;
  void Do(TTextEditor& edit) override;
};

}  // namespace vcl
