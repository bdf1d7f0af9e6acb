// The package's editors of components: running a component, and the about box.
#include "qel/design/Qelcomponenteditors.h"

#include <iterator>

#include "qel/core/Qelcomponent.h"
#include "vcl/designintf/propertyeditor.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr const char* Verbs[] = {"Execute the Component", "QEL component library, 2026"};
enum { ExecuteVerbIndex, CreditVerbIndex };

}  // namespace

void TQELDialogEditor::Edit() {
  if (auto* component = dynamic_cast<TQELExecComponent*>(&Component())) component->Execute();
}

int TQELDialogEditor::GetVerbCount() const { return static_cast<int>(std::size(Verbs)); }

std::string TQELDialogEditor::GetVerb(int index) const {
  if (index < 0 || index >= GetVerbCount()) return TComponentEditor::GetVerb(index);
  return Verbs[index];
}

void TQELDialogEditor::ExecuteVerb(int index) {
  switch (index) {
    case ExecuteVerbIndex: return Edit();
    case CreditVerbIndex: return ShowCredit();
    default: return TComponentEditor::ExecuteVerb(index);
  }
}

void TQELDialogEditor::ShowCredit() {
  vcl::Application()->MessageBox(
      "The property About of the component tells more about it and the library.",
      Verbs[CreditVerbIndex], MB_OK | MB_ICONINFORMATION);
}

void TQELMailConfigEditor::Edit() {
  const vcl::TPropInfo* messages = Component().ClassType().FindPublished("Messages");
  if (messages) vcl::MakePropertyEditor(Designer(), {{&Component(), messages}})->Edit();
}

std::string TQELMailConfigEditor::GetVerb(int index) const {
  return index == 0 ? "Configure Mail ..." : TComponentEditor::GetVerb(index);
}

void TQELMailConfigEditor::ExecuteVerb(int index) {
  if (index != 0) return TComponentEditor::ExecuteVerb(index);
  Edit();
}

}  // namespace qel
