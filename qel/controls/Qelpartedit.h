// TQELCustomPartEdit: an edit with pictures and buttons beside its text.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "vcl/stdctrls/edit.h"

namespace qel {

/// How a part looks.
enum class TQELPartLook { Normal, Hot, Pressed, Disabled };

/// What stands beside the text of an edit.
struct TQELEditPart {
  int Number;        ///< By which the edit knows it.
  int Width;         ///< In pixels.
  bool Left;         ///< Before the text, else behind it.
  bool Button;       ///< It can be pressed.
  const char* Name;  ///< What a screen reader calls a button.
};

/// An edit with parts beside its text, inside its border: the text keeps off them. Descendants say
/// which there are and draw them.
class QEL_API TQELCustomPartEdit : public vcl::TCustomEdit {
 public:
  ~TQELCustomPartEdit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  std::vector<vcl::TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const vcl::TAccessiblePath& part) override;

  /// What the edit says about the package.
  TQELAbout* About() const { return FAbout.get(); }

 protected:
  explicit TQELCustomPartEdit(vcl::TComponent* owner);
  /// The parts that there are now, at each side the outmost one first.
  virtual std::vector<TQELEditPart> Parts() const = 0;
  virtual void DrawPart(vcl::TCanvas& canvas, int number, const vcl::TRect& rect,
                        TQELPartLook look) = 0;
  /// A button has been pressed and released.
  virtual void PressPart(int number) = 0;
  /// Whether the part can be pressed now.
  virtual bool PartEnabled(int /*number*/) const { return Enabled(); }
  /// There are other parts, or they look different.
  void PartsChanged();
  /// Where the part is in the client rectangle; empty when there is none.
  vcl::TRect PartRect(int number) const;
  /// Where the text is.
  vcl::TRect TextRect() const;
  /// Draws beside and over what the system has drawn. The inherited method draws the parts.
  virtual void PaintOver(vcl::TCanvas& canvas);
  /// True while the mouse is over the edit.
  bool Hot() const { return FHot; }
  /// The mouse has come or gone.
  virtual void HotChanged() {}

  void CreateWnd() override;
  void WndProc(vcl::TMessage& message) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  TQELPartLook LookOf(const TQELEditPart& part) const;
  std::optional<int> ButtonAt(vcl::TPoint point) const;
  void SetMargins();
  void SetHotPart(std::optional<int> number);
  bool TakeMouse(const vcl::TMessage& message);
  void Release(vcl::TPoint point);
  void Paint(const vcl::TMessage& message);

  std::unique_ptr<TQELAbout> FAbout;
  std::optional<int> FPressed;
  std::optional<int> FHotPart;
  bool FHot = false;
};

}  // namespace qel
