// The base classes without a window, and the text that TQELAbout shows.
#include "qel/core/Qelcomponent.h"

#include <iterator>

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"

namespace qel {

namespace {

constexpr const char* AboutSuffix = " - QEL component library";
constexpr const char* AboutLines[] = {
    "QEL component library",
    "Painted components for Windows desktop applications.",
    "One background can be shared by all controls of a form,",
    "and their text, frames and glyphs are drawn in the same way.",
    "Components are put on a form from the palette pages",
    "that begin with \"QEL\" and set up in the object inspector;",
    "at run time they are made from the form's file.",
    "The reference of all classes is in docs/reference.md.",
    "The sources come with a gallery that shows every setting.",
};

/// An empty line follows the fourth and the seventh line.
std::string AboutText() {
  std::string text;
  for (std::size_t i = 0; i < std::size(AboutLines); ++i) {
    if (i > 0) text += '\r';
    if (i == 4 || i == 7) text += '\r';
    text += AboutLines[i];
  }
  return text;
}

}  // namespace

void TQELAbout::Showabout() const {
  const std::string name = FOwner ? FOwner->Name() : "";
  const std::string className = FOwner ? FOwner->ClassName() : "";
  vcl::BaseApplication().MessageBox(AboutText(), "(" + name + ") - " + className + AboutSuffix, 0);
}

TQELComponent::TQELComponent(vcl::TComponent* owner)
    : TComponent(owner), FAbout(std::make_unique<TQELAbout>(this)) {}

TQELComponent::~TQELComponent() = default;

TQELExecComponent::TQELExecComponent(vcl::TComponent* owner)
    : TQELComponent(owner), FDesignExecute("(Execute)") {}

bool TQELExecComponent::Execute() { return false; }

void TQELExecComponent::DoExec(const std::string& value) {
  // The text never changes, so there is nothing to set back, not even when Execute raises.
  if (value == "(Busy...)") Execute();
}

const vcl::TClass& TQELAbout::Class() {
  static const vcl::TClass info =
      vcl::Describe<TQELAbout, TPersistent>("qel::TQELAbout", "qel/core/Qelclasses.h", {});
  return info;
}

const vcl::TClass& TQELComponent::Class() {
  static const vcl::TClass info = vcl::Describe<TQELComponent, TComponent>(
      "qel::TQELComponent", "qel/core/Qelclasses.h",
      {vcl::ReadOnly<&TQELComponent::About>("About").Stored(false)});
  return info;
}

const vcl::TClass& TQELExecComponent::Class() {
  static const vcl::TClass info = vcl::Describe<TQELExecComponent, TQELComponent>(
      "qel::TQELExecComponent", "qel/core/Qelclasses.h",
      {vcl::Property<&TQELExecComponent::DesignExecute, &TQELExecComponent::DoExec>("DesignExecute")
           .Stored(false)});
  return info;
}

}  // namespace qel
