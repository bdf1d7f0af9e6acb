// TQELTopMost: a form above the windows of all programs.
#pragma once

#include "qel/services/Qelformcomponent.h"

namespace qel {

/// Keeps its form above all windows that are not topmost themselves. When the component is freed or
/// made inactive, the form takes its place among the others again, unless its FormStyle is
/// fsStayOnTop or another TQELTopMost keeps it there. Forms that stand inside others stay there.
class QEL_API TQELTopMost : public TQELFormComponent {
 public:
  explicit TQELTopMost(vcl::TComponent* owner);
  ~TQELTopMost() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  bool WhileActive() const { return FWhileActive; }
  /// True: only while the program is the active one.
  void SetWhileActive(bool whileActive);

 protected:
  void AfterMessage(vcl::TMessage& message) override;
  void Begin() override;
  void End() override;

 private:
  bool Wants() const;
  void Update() const;

  bool FWhileActive = false;
  bool FProgramActive = false;
};

}  // namespace qel
