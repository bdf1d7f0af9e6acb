// TQELFontCombo and TQELFontBox: a typeface is chosen from a list.
#pragma once

#include <memory>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qelfontlines.h"
#include "vcl/stdctrls/combobox.h"
#include "vcl/stdctrls/listbox.h"

namespace qel {

/// A combo box of the system's typefaces, each written in itself. Typefaces that are installed
/// meanwhile appear.
class QEL_API TQELFontCombo : public vcl::TCustomComboBox {
 public:
  explicit TQELFontCombo(vcl::TComponent* owner);
  ~TQELFontCombo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the combo box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  std::string FontName() const { return FFonts->FontName(); }
  /// The typeface that is chosen. One that is not listed is kept, with no line selected.
  void SetFontName(const std::string& name) { FFonts->SetFontName(name); }
  TQELFontKinds Kinds() const { return FFonts->Kinds(); }
  /// Which kinds of typefaces are listed.
  void SetKinds(TQELFontKinds kinds) { FFonts->SetKinds(kinds); }
  bool FixedOnly() const { return FFonts->FixedOnly(); }
  /// True lists those only whose characters are all of one width.
  void SetFixedOnly(bool fixedOnly) { FFonts->SetFixedOnly(fixedOnly); }
  bool Preview() const { return FFonts->Preview(); }
  /// False writes all names in the control's font.
  void SetPreview(bool preview) { FFonts->SetPreview(preview); }
  int RecentCount() const { return FFonts->RecentCount(); }
  /// How many of the typefaces that the user has chosen stand first in the list, the last one
  /// above. Refuses, silently, a negative number.
  void SetRecentCount(int count) { FFonts->SetRecentCount(count); }
  vcl::TFontCharset Charset() const { return FFonts->Charset(); }
  /// The set of characters that the typefaces have, by the system's number; 1 for any.
  void SetCharset(vcl::TFontCharset charset) { FFonts->SetCharset(charset); }

 protected:
  void DropDown() override;
  void CloseUp() override;
  void Change() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  TQELFontLines* FFonts;  // The list's look.
  bool FMoved = false;    // The selection, in the list that is open.
  bool FClosed = false;   // The list, just now, without a change of the selection.
};

/// A list box of the system's typefaces. What the user chooses with Enter or a double click counts
/// as used, and stands first from then on.
class QEL_API TQELFontBox : public vcl::TCustomListBox {
 public:
  explicit TQELFontBox(vcl::TComponent* owner);
  ~TQELFontBox() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the list box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  std::string FontName() const { return FFonts->FontName(); }
  /// The typeface that is chosen. One that is not listed is kept, with no line selected.
  void SetFontName(const std::string& name) { FFonts->SetFontName(name); }
  TQELFontKinds Kinds() const { return FFonts->Kinds(); }
  /// Which kinds of typefaces are listed.
  void SetKinds(TQELFontKinds kinds) { FFonts->SetKinds(kinds); }
  bool FixedOnly() const { return FFonts->FixedOnly(); }
  /// True lists those only whose characters are all of one width.
  void SetFixedOnly(bool fixedOnly) { FFonts->SetFixedOnly(fixedOnly); }
  bool Preview() const { return FFonts->Preview(); }
  /// False writes all names in the control's font.
  void SetPreview(bool preview) { FFonts->SetPreview(preview); }
  int RecentCount() const { return FFonts->RecentCount(); }
  /// How many of the typefaces that the user has chosen stand first in the list, the last one
  /// above. Refuses, silently, a negative number.
  void SetRecentCount(int count) { FFonts->SetRecentCount(count); }
  vcl::TFontCharset Charset() const { return FFonts->Charset(); }
  /// The set of characters that the typefaces have, by the system's number; 1 for any.
  void SetCharset(vcl::TFontCharset charset) { FFonts->SetCharset(charset); }

 protected:
  void DblClick() override;
  void KeyPress(char32_t& key) override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  TQELFontLines* FFonts;  // The list's look.
};

}  // namespace qel
