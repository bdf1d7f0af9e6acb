// A package with one of everything that a package can register. When the environment says so, it
// fails once it has registered all of it.
#include <cstdlib>
#include <exception>
#include <string_view>

#include "vcl/designintf/componenteditor.h"
#include "vcl/designintf/environment.h"
#include "vcl/designintf/registration.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/rtl/exceptions.h"

namespace {

class TSample : public vcl::TComponent {
 public:
  using TComponent::TComponent;
  static const vcl::TClass& Class() {
    static const vcl::TClass info =
        vcl::Describe<TSample, vcl::TComponent>("TSample", "sample", {});
    return info;
  }
  const vcl::TClass& ClassType() const override { return Class(); }
};

class TSamplePart : public TSample {
 public:
  using TSample::TSample;
  static const vcl::TClass& Class() {
    static const vcl::TClass info =
        vcl::Describe<TSamplePart, TSample>("TSamplePart", "sample", {});
    return info;
  }
  const vcl::TClass& ClassType() const override { return Class(); }
};

/// An error whose class, and what it says, lies in the package.
class TSampleError : public std::exception {
 public:
  TSampleError() = default;
  TSampleError(const TSampleError&) = default;
  TSampleError& operator=(const TSampleError&) = default;
  ~TSampleError() override { FText[0] = 0; }
  const char* what() const noexcept override { return FText; }

 private:
  char FText[16] = "of its own sort";
};

}  // namespace

extern "C" __declspec(dllexport) void Register() {
  vcl::RegisterComponents("Samples", {&TSample::Class()});
  vcl::RegisterNoIcon({&TSamplePart::Class()});
  vcl::RegisterPropertyEditor("Boolean", nullptr, "",
                              vcl::PropertyEditorClass<vcl::TBooleanProperty>("TSampleEditor"));
  vcl::RegisterComponentEditor(vcl::TComponent::Class(),
                               vcl::ComponentEditorClass<vcl::TDefaultEditor>("TSampleEditor"));
}

extern "C" __declspec(dllexport) void RegisterExpert() {
  vcl::RegisterExpertClass(
      {"TSampleExpert", [](vcl::TEnvironment&) { return std::make_unique<vcl::TExpert>(); }});
  const char* fails = std::getenv("SAMPLE_PACKAGE_FAILS");
  if (fails && std::string_view(fails) == "own") throw TSampleError();
  if (fails) throw vcl::Exception("half-way");
}
