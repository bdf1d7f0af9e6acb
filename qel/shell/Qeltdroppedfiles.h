// TQELDroppedFiles: files that the user drops on a form or a control.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "vcl/controls/control.h"
#include "vcl/rtl/events.h"

namespace qel {

/// Sender, the files, with their folders, and the place on the control.
using TQELDropFilesEvent =
    vcl::TEvent<vcl::TObject*, const std::vector<std::string>&, int /*x*/, int /*y*/>;
/// The same before the files are dropped, and whether they may be.
using TQELDragFilesEvent =
    vcl::TEvent<vcl::TObject*, const std::vector<std::string>&, int /*x*/, int /*y*/, bool&>;

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEventText EventText<qel::TQELDropFilesEvent>{
    "TQELDropFilesEvent",
    "vcl::TObject* sender, const std::vector<std::string>& files, int x, int y"};
template <>
inline constexpr TEventText EventText<qel::TQELDragFilesEvent>{
    "TQELDragFilesEvent",
    "vcl::TObject* sender, const std::vector<std::string>& files, int x, int y, bool& accept"};

}  // namespace vcl

namespace qel {

/// Takes files that are dragged from any program and dropped on a control, which needs no window of
/// its own, or on the form. Where several could take them, those of the innermost control do, all
/// of them. The files stay where they are: they are never moved. In the designer it takes nothing.
class QEL_API TQELDroppedFiles : public TQELComponent {
 public:
  explicit TQELDroppedFiles(vcl::TComponent* owner);
  ~TQELDroppedFiles() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  bool Active() const { return FActive; }
  /// False: nothing is taken.
  void SetActive(bool active);
  vcl::TControl* Control() const { return FControl; }
  /// Where files may be dropped; null for the whole form. When the control is freed, nothing is
  /// taken until this is set again. To be set again, too, when the control comes to another form.
  /// Raises EInvalidOperation when the form has a drop target of the program's own.
  void SetControl(vcl::TControl* control);
  const std::string& Masks() const { return FMasks; }
  /// Which files are taken, "*.txt;*.md" for instance; empty for all. Others that are dragged with
  /// them are left out.
  void SetMasks(const std::string& masks) { FMasks = masks; }

  /// Files come over the control, or move there; they may be refused.
  TQELDragFilesEvent OnDragOver;
  /// Files have been dropped on the control.
  TQELDropFilesEvent OnDrop;

 protected:
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  class TTarget;
  void Update();
  vcl::TWinControl* Form() const;
  const vcl::TControl* Place() const;
  std::vector<std::string> Meant(const std::vector<std::string>& files) const;
  bool Over(const std::vector<std::string>& files, vcl::TPoint screen);
  void Drop(const std::vector<std::string>& files, vcl::TPoint screen);

  bool FActive = true;
  bool FForsaken = false;  // Its control has been freed.
  vcl::TControl* FControl = nullptr;
  std::string FMasks;
  std::shared_ptr<TTarget> FTarget;
};

}  // namespace qel
