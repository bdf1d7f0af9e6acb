// TQELCheckList: a list box with check marks.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qelglyph.h"
#include "vcl/stdctrls/checklst.h"

namespace qel {

/// A list whose items have check marks: the system's, or images of one's own. The marks go where
/// their items go and are kept in form files.
class QEL_API TQELCheckList : public vcl::TCheckListBox {
 public:
  explicit TQELCheckList(vcl::TComponent* owner);
  ~TQELCheckList() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the list says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  /// The items' marks, one character each: 0 for none, 1 for a check, 2 for a grey one.
  std::string States() const;
  /// Items without a character lose their marks; characters without an item mean nothing. Refuses,
  /// silently, a text with other characters.
  void SetStates(const std::string& states);
  /// Images to draw in place of the system's marks: unchecked, disabled, checked, greyed. Where one
  /// is missing, the first stands in.
  TQELGlyph* Glyph() const { return FGlyph.get(); }
  void SetGlyph(const TQELGlyph* glyph) { FGlyph->Assign(glyph); }
  int Columns() const { return FColumns; }
  /// How many columns the items stand in, side by side; 0 for one that is scrolled up and down.
  /// Refuses, silently, a negative number.
  void SetColumns(int columns);

  /// Checks all items that are enabled.
  void CheckAll() { TCheckListBox::CheckAll(vcl::cbChecked, true, false); }
  /// Takes the marks of all items that are enabled.
  void UncheckAll() { TCheckListBox::CheckAll(vcl::cbUnchecked, true, false); }
  /// Checks the enabled items that are not, and takes the marks of those that are; grey ones stay.
  void Invert();
  /// How many items are checked; grey ones don't count.
  int CheckedCount() const;

 protected:
  int MarkSize() const override;
  void DrawMark(const vcl::TRect& rect, vcl::TCheckBoxState state, bool enabled) override;
  void CreateParams(vcl::TCreateParams& params) override;
  void CreateWnd() override;
  void Resize() override;
  void Loaded() override;

 private:
  bool AreStatesStored() const;
  bool HasImages() const;
  void GlyphChanged(vcl::TObject* sender);
  void FitColumns();

  std::unique_ptr<TQELAbout> FAbout;
  std::unique_ptr<TQELGlyph> FGlyph;
  int FColumns = 0;
  std::string FLoadedStates;  // Until the items are there.
};

}  // namespace qel
