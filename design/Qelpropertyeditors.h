// The package's editors of single properties: names of files, values that are only shown, the about
// box, and running a component in the designer.
#pragma once

#include "core/api.h"
#include "host/designintf/standardeditors.h"

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

class QEL_API TQELWaveFilenameProperty : public TQELFilenameProperty {
 public:
  using TQELFilenameProperty::TQELFilenameProperty;
  std::string GetFilter() const override;
};

class QEL_API TQELBitmapFilenameProperty : public TQELFilenameProperty {
 public:
  using TQELFilenameProperty::TQELFilenameProperty;
  std::string GetFilter() const override;
};

class QEL_API TQELINIFilenameProperty : public TQELFilenameProperty {
 public:
  using TQELFilenameProperty::TQELFilenameProperty;
  std::string GetFilter() const override;
};

class QEL_API TQELAviFilenameProperty : public TQELFilenameProperty {
 public:
  using TQELFilenameProperty::TQELFilenameProperty;
  std::string GetFilter() const override;
};

class QEL_API TQELLogFilenameProperty : public TQELFilenameProperty {
 public:
  using TQELFilenameProperty::TQELFilenameProperty;
  std::string GetFilter() const override;
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

/// "(Execute)": its button runs the component.
class QEL_API TQELShowMeNowProperty : public vcl::TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  vcl::TPropertyAttributes GetAttributes() const override {
    return {vcl::paDialog, vcl::paReadOnly};
  }
  void Edit() override;
};

/// The about box of a component.
class QEL_API TQELAboutCompsProperty : public vcl::TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  vcl::TPropertyAttributes GetAttributes() const override {
    return {vcl::paDialog, vcl::paReadOnly};
  }
  void Edit() override;
};

/// A caption of several lines.
class QEL_API TQELCaptionProperty : public vcl::TCaptionProperty {
 public:
  using TCaptionProperty::TCaptionProperty;
  vcl::TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

/// A hint of several lines.
class QEL_API TQELHintProperty : public vcl::TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  vcl::TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

}  // namespace qel
