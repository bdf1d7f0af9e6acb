// Runs the tests, or is another program that a test has started: see TCopy and TRole.
#include <gmock/gmock.h>

#include <cstring>

#include "qel/qel.h"
#include "tests/services/roles.h"
#include "tests/support/texts.h"
#include "vcl/vcl.h"

namespace {

constexpr int ShownCode = 100;

class TCopyForm : public vcl::TForm {
 public:
  explicit TCopyForm(vcl::TComponent* owner) : TForm(owner) { ReadForm(FormFile, this); }
  static const vcl::TClass& Class() {
    static const vcl::TClass info = vcl::Describe<TCopyForm, TForm>(
        "TCopyForm", "main", {vcl::Method<&TCopyForm::GuardExceeded>("GuardExceeded")});
    return info;
  }
  const vcl::TClass& ClassType() const override { return Class(); }
  static inline std::string FormFile;

 private:
  void GuardExceeded(vcl::TObject*, int instances) {
    vcl::Application()->SetExitCode(ShownCode + instances);
  }
};

int RunCopy(const std::string& title, const std::string& instances, const std::string& onExceed) {
  vcl::RegisterClass(qel::TQELOnlyOne::Class());
  TCopyForm::FormFile =
      "object CopyForm: TCopyForm\n object Guard: TQELOnlyOne\n Instances = " + instances +
      "\n OnExceed = " + onExceed + "\n OnExceeded = GuardExceeded\n end\nend\n";
  vcl::Application()->Initialize();
  vcl::Application()->SetTitle(title);
  vcl::Application()->SetExitCode(ShownCode);
  auto* form = vcl::Application()->CreateForm<TCopyForm>();
  form->OnActivate = [&](vcl::TObject*) {
    if (title != "Stranger") vcl::Application()->Terminate();
  };
  return vcl::Application()->Run();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 5 && std::strcmp(argv[1], "--copy") == 0) return RunCopy(argv[2], argv[3], argv[4]);
  if (argc >= 3 && std::strcmp(argv[1], "--role") == 0) {
    return PlayRole(argv[2], {argv + 3, argv + argc});
  }
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
