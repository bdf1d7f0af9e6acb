#include "tests/services/copy.h"

#include <cstdio>

#include "host/rtl/classregistry.h"
#include "host/rtl/formfile.h"
#include "host/rtl/properties.h"
#include "host/rtl/streams.h"
#include "host/vcl/forms.h"
#include "services/Qeltonlyone.h"

namespace {

/// Its buffer is written when the process ends in order, and only then.
std::FILE* LogFile = nullptr;

class TCopyForm : public vcl::TForm {
 public:
  explicit TCopyForm(vcl::TComponent* owner) : TForm(owner) {
    vcl::TStringStream file(FormFile);
    vcl::ReadComponentFile(file, this);
  }
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  static inline std::string FormFile;

 private:
  void GuardExceeded(vcl::TObject* sender, int instances) {
    std::fprintf(LogFile, "%s found %d, ", sender->ClassName().c_str(), instances);
  }
  void FormDestroy(vcl::TObject*) { std::fprintf(LogFile, "freed"); }
  qel::TQELOnlyOne* Guard = nullptr;
};

const vcl::TClass& TCopyForm::Class() {
  using namespace vcl;
  static const TClass info =
      Describe<TCopyForm, TForm>("TCopyForm", "copy",
                                 {
                                     Field<&TCopyForm::Guard>("Guard"),
                                     Method<&TCopyForm::GuardExceeded>("GuardExceeded"),
                                     Method<&TCopyForm::FormDestroy>("FormDestroy"),
                                 });
  return info;
}

}  // namespace

int RunCopy(char** arguments) {
  const std::string instances = arguments[1], onExceed = arguments[2];
  LogFile = std::fopen(arguments[3], "w");
  TCopyForm::FormFile =
      "object CopyForm: TCopyForm\n OnDestroy = FormDestroy\n"
      " object Guard: TQELOnlyOne\n  Instances = " +
      instances + "\n  OnExceed = " + onExceed + "\n  OnExceeded = GuardExceeded\n end\nend\n";
  vcl::Application()->Initialize();
  vcl::Application()->SetTitle(arguments[0]);
  vcl::Application()->CreateForm<TCopyForm>();
  return vcl::Application()->Run();
}
