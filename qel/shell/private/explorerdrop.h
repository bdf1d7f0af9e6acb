// Files that are dropped on an explorer view.
#pragma once

#include "qel/shell/Qeltexplorerview.h"
#include "vcl/transfer/droptarget.h"

namespace qel {

/// What lets files be dropped on the view. They go into the folder under the mouse, or into the
/// view's; copied with Ctrl held, moved with Shift, without either moved where they stay on their
/// drive.
struct TQELExplorerView::TDrop {
  explicit TDrop(TQELExplorerView& view);
  /// Follows Take; the view's window is there or not.
  void Attach();
  vcl::TDropEffect EffectOf(const vcl::TDropInfo& info) const;

  TQELExplorerView& View;
  vcl::TDropTarget Target{nullptr};
  bool Take = true;
};

}  // namespace qel
