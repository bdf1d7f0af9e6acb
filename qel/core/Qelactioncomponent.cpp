// TQELActionComponent: doing it, or telling what it would do.
#include "qel/core/Qelactioncomponent.h"

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"

namespace qel {

EQELSystemError::EQELSystemError(const std::string& what, int code)
    : Exception(vcl::Concat(what, ": ", vcl::SysErrorMessage(code))), FCode(code) {}
EQELSystemError::~EQELSystemError() = default;

const vcl::TClass& TQELActionComponent::Class() {
  static const vcl::TClass info = vcl::Describe<TQELActionComponent, TQELExecComponent>(
      "qel::TQELActionComponent", "qel/core/Qelactioncomponent.h", {});
  return info;
}

bool TQELActionComponent::Execute() {
  if (Designing()) {
    vcl::BaseApplication().MessageBox(DesignText(), Name(), 0);
    return false;
  }
  return Try([this] { return DoExecute(); });
}

void TQELActionComponent::SetLastError(const std::string& text, int code) {
  FLastError = text;
  FLastErrorCode = code;
}

}  // namespace qel
