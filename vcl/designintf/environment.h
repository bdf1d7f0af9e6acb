// TEnvironment and TExpert: what a package adds to the designer application beside its components.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/designintf/designer.h"
#include "vcl/menus/menus.h"

namespace vcl {

/// The designer application, as its add-ins see it.
class VCL_API TEnvironment {
 public:
  TEnvironment() = default;
  TEnvironment(const TEnvironment&) = delete;
  TEnvironment& operator=(const TEnvironment&) = delete;
  virtual ~TEnvironment();

  /// The application's main menu, where an add-in puts items of its own. The hint of the item that
  /// the user points at is shown, that of a disabled one too: it says why the item is disabled.
  virtual TMainMenu& MainMenu() = 0;
  /// The designer of the form in front; null when none is open.
  virtual TDesigner* ActiveDesigner() = 0;
  /// Saves every open form that has a file and was changed. Nobody is asked anything; what goes
  /// wrong is among the application's messages.
  virtual void SaveFiles() = 0;
  /// The files that the application remembers from one run to the next: forms that were open, and
  /// its packages.
  virtual std::vector<std::string> RememberedFiles() const = 0;
  virtual void ForgetFile(const std::string& fileName) = 0;
};

/// An add-in. It adds what it has to the environment in its constructor and takes it away in its
/// destructor; a menu item leaves its menu when it is freed.
class VCL_API TExpert {
 public:
  TExpert() = default;
  TExpert(const TExpert&) = delete;
  TExpert& operator=(const TExpert&) = delete;
  virtual ~TExpert();
};

/// How an add-in is made, and what it is called.
struct TExpertClass {
  std::string_view Name;
  std::unique_ptr<TExpert> (*Make)(TEnvironment& environment);
};

/// Called by a package's entry point "RegisterExpert". The application makes one add-in of each
/// class when it has loaded the package, and frees it before it unloads the package.
VCL_API void RegisterExpertClass(const TExpertClass& expert);
/// The registered add-ins, in order.
VCL_API const std::vector<TExpertClass>& RegisteredExperts();

}  // namespace vcl
