// Editors of names that a data source gives the choice of.
#pragma once

#include "qel/core/api.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// A text to choose from a list, or to type.
class QEL_API TQELDBStringProperty : public vcl::TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  vcl::TPropertyAttributes GetAttributes() const override {
    return {vcl::paValueList, vcl::paMultiSelect, vcl::paSortList};
  }
  void GetValues(const std::function<void(const std::string&)>& each) const override;
  /// Fills the list; here with nothing.
  virtual void GetValueList(vcl::TStrings& /*list*/) const {}
};

/// The name of a field of the data set behind the component's data source.
class QEL_API TQELDataFieldProperty : public TQELDBStringProperty {
 public:
  using TQELDBStringProperty::TQELDBStringProperty;
  /// The property of the component that holds its data source.
  virtual std::string GetDataSourcePropName() const { return "DataSource"; }
  void GetValueList(vcl::TStrings& list) const override;
};

/// The same for an item of a component's collection of columns.
class QEL_API TQELItemDataFieldProperty : public TQELDBStringProperty {
 public:
  using TQELDBStringProperty::TQELDBStringProperty;
  virtual std::string GetDataSourcePropName() const { return "DataSource"; }
  void GetValueList(vcl::TStrings& list) const override;
};

}  // namespace qel
