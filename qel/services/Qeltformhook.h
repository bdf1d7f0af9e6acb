// TQELFormHook: a form's messages as events.
#pragma once

#include <memory>
#include <set>

#include "qel/services/Qelformcomponent.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// Sender, the message, which may be changed; `handled` set to true keeps it from the form.
using TQELHookMessage = vcl::TEvent<vcl::TObject*, vcl::TMessage&, bool&>;
/// Sender, the message with the form's answer in its Result, which may be changed.
using TQELHookAfterMessage = vcl::TEvent<vcl::TObject*, vcl::TMessage&>;

/// Fires events for the messages of its form's window, before and after the form handles them. A
/// form may have any number of hooks: the youngest comes first before the form, and last behind it.
/// They can be freed in their own events, as can the form.
class QEL_API TQELFormHook : public TQELFormComponent {
 public:
  explicit TQELFormHook(vcl::TComponent* owner);
  ~TQELFormHook() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  vcl::TStrings* Messages() const { return FMessages.get(); }
  /// The messages that fire events, one a line: the system's names (WM_SIZE), numbers, in decimal
  /// or as 0x0005, or the sum of both (WM_USER+1). No line at all: every message. A line that is
  /// none of these stands for no message.
  void SetMessages(const vcl::TStrings* messages) { FMessages->Assign(messages); }
  /// Whether the message fires events.
  bool Wants(UINT message) const;

  /// A message has come, and the form has not had it yet. What makes and ends the window
  /// (WM_NCCREATE, WM_CREATE, WM_DESTROY, WM_NCDESTROY) reaches the form also when it is handled.
  TQELHookMessage OnMessage;
  /// The form has handled the message. Not fired for one that a hook has kept from it.
  TQELHookAfterMessage OnAfterMessage;

 protected:
  void BeforeMessage(vcl::TMessage& message, bool& handled) override;
  void AfterMessage(vcl::TMessage& message) override;

 private:
  void MessagesChanged(vcl::TObject* sender);

  std::unique_ptr<vcl::TStringList> FMessages;
  std::set<UINT> FNumbers;  // Of the lines that can be read.
};

}  // namespace qel
