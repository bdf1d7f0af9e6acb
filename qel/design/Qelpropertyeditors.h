// The package's editors of single properties: names of files, values that are only shown, the about
// box, and running a component in the designer.
#pragma once

#include "qel/core/api.h"
#include "vcl/designintf/standardeditors.h"

namespace qel {

/// The name of a file, which a dialog finds.
class QEL_API TQELFilenameProperty : public vcl::TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  vcl::TPropertyAttributes GetAttributes() const override { return {vcl::paDialog}; }
  void Edit() override;
  /// Descriptions and patterns of the files that the dialog offers.
  virtual std::string GetFilter() const;
};

/// The same with another filter.
template <const char* Filter>
class TQELFilteredProperty : public TQELFilenameProperty {
 public:
  using TQELFilenameProperty::TQELFilenameProperty;
  std::string GetFilter() const override { return Filter; }
};

/// What the dialogs offer. The bar at the end belongs to them.
namespace filters {
inline constexpr char Wave[] = "Wave Files (*.wav)|*.wav|";
inline constexpr char Bitmap[] = "Bitmaps (*.bmp)|*.bmp|";
inline constexpr char Ini[] = "INI Files (*.ini)|*.ini|";
inline constexpr char Avi[] = "Avi Files (*.avi)|*.avi|";
inline constexpr char Log[] = "Log Files (*.log)|*.log|";
}  // namespace filters

using TQELWaveFilenameProperty = TQELFilteredProperty<filters::Wave>;
using TQELBitmapFilenameProperty = TQELFilteredProperty<filters::Bitmap>;
using TQELINIFilenameProperty = TQELFilteredProperty<filters::Ini>;
using TQELAviFilenameProperty = TQELFilteredProperty<filters::Avi>;
using TQELLogFilenameProperty = TQELFilteredProperty<filters::Log>;

/// The short name of a language, out of those that the system knows.
class QEL_API TQELLocaleProperty : public vcl::TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  vcl::TPropertyAttributes GetAttributes() const override {
    return {vcl::paValueList, vcl::paMultiSelect, vcl::paSortList};
  }
  void GetValues(const std::function<void(const std::string&)>& each) const override;
};

/// An editor that shows and never edits: what Base offers, without typing.
template <class Base>
class TQELShownProperty : public Base {
 public:
  using Base::Base;
  vcl::TPropertyAttributes GetAttributes() const override {
    return Base::GetAttributes() + vcl::TPropertyAttributes{vcl::paReadOnly};
  }
};
using TQELROStringProperty = TQELShownProperty<vcl::TStringProperty>;
using TQELROCaptionProperty = TQELShownProperty<vcl::TCaptionProperty>;
using TQELROIntegerProperty = TQELShownProperty<vcl::TIntegerProperty>;
using TQELROBooleanproperty = TQELShownProperty<vcl::TBooleanProperty>;

/// An editor of what only a dialog, or what its button does, changes.
template <class Base>
class TQELDialogOnlyProperty : public Base {
 public:
  using Base::Base;
  vcl::TPropertyAttributes GetAttributes() const override {
    return {vcl::paDialog, vcl::paReadOnly};
  }
};

/// "(Execute)": its button runs the component.
class QEL_API TQELShowMeNowProperty : public TQELDialogOnlyProperty<vcl::TStringProperty> {
 public:
  using TQELDialogOnlyProperty::TQELDialogOnlyProperty;
  void Edit() override;
};

/// The about box of a component.
class QEL_API TQELAboutCompsProperty : public TQELDialogOnlyProperty<vcl::TClassProperty> {
 public:
  using TQELDialogOnlyProperty::TQELDialogOnlyProperty;
  void Edit() override;
};

/// A code of which only the hash is kept: its button asks for the code, twice. It shows no more
/// than whether there is one.
class QEL_API TQELCodeProperty : public vcl::TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  vcl::TPropertyAttributes GetAttributes() const override {
    return {vcl::paDialog, vcl::paRevertable};
  }
  std::string GetValue() const override;
  /// Raises EPropertyError, which does not repeat what was typed: it may be the code.
  void SetValue(const std::string& text) override;
  void Edit() override;
};

/// Edits a text in a dialog of many lines, which the text keeps as the system's texts do.
QEL_API void EditInLines(vcl::TPropertyEditor& editor);

/// A text of several lines.
template <class Base>
class TQELLinesProperty : public Base {
 public:
  using Base::Base;
  vcl::TPropertyAttributes GetAttributes() const override {
    return Base::GetAttributes() + vcl::TPropertyAttributes{vcl::paDialog};
  }
  void Edit() override { EditInLines(*this); }
};
using TQELCaptionProperty = TQELLinesProperty<vcl::TCaptionProperty>;
using TQELHintProperty = TQELLinesProperty<vcl::TStringProperty>;

}  // namespace qel
