// TProgressWindow: how far something is, with a button that ends it.
#pragma once

#include <memory>
#include <string>

#include "vcl/forms/forms.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/progressbar.h"

namespace qel {

/// Appears when the work has taken half a second, and lets the application handle its messages.
class TProgressWindow {
 public:
  explicit TProgressWindow(const std::string& title);
  ~TProgressWindow();
  TProgressWindow(const TProgressWindow&) = delete;
  TProgressWindow& operator=(const TProgressWindow&) = delete;

  /// Shows what is in hand and how much is done, from 0 to 1. False once the user has ended it.
  bool Show(const std::string& what, double done);

 private:
  vcl::TForm FForm;
  vcl::TLabel* FWhat;
  vcl::TProgressBar* FBar;
  vcl::TButton* FCancel;
  unsigned long long FBegin;
  bool FCancelled = false;
};

}  // namespace qel
