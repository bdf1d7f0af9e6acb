// TQELDBMemoView: a long text in a field, which a window may show larger.
#pragma once

#include <memory>

#include "qel/core/Qelcomponent.h"
#include "vcl/dbctrls/dbmemo.h"

namespace qel {

/// Edits a long text of the current record. With EditInWindow, a double click shows it in a window
/// of its own, whose text is taken over with OK.
class QEL_API TQELDBMemoView : public vcl::TDBMemo {
 public:
  explicit TQELDBMemoView(vcl::TComponent* owner);
  ~TQELDBMemoView() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the control says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  bool EditInWindow() const { return FEditInWindow; }
  /// True: a double click opens a window for the text.
  void SetEditInWindow(bool inWindow) { FEditInWindow = inWindow; }

  /// Shows the text in a window, over the form, until the user closes that. True when the text has
  /// been changed there; where the record cannot be edited, it can only be read.
  bool ShowWindow();

 protected:
  void DblClick() override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  bool FEditInWindow = false;
};

}  // namespace qel
