// TPackage: a DLL of components, loaded as a form designer loads it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/object.h"

namespace vcl {

/// A package could not be loaded; says which and why.
class VCL_API EPackageError : public Exception {
 public:
  using Exception::Exception;
  ~EPackageError() override;
};

/// The entry point of a package, under the name "Register", which tells what a designer gets from
/// it (registration.h, propertyeditor.h, componenteditor.h); and another one, which a package may
/// have under the name "RegisterExpert" for its add-ins (environment.h).
using TRegisterProc = void (*)();
/// Lists the classes that a package declares, on a palette page or not, under the name
/// "ListClasses": calls `each` with every class, and `context` passed through.
using TListClassesProc = void (*)(void (*each)(const TClass& aClass, void* context), void* context);

/// A loaded package. What it registered is taken back when the object ends, and the DLL goes out of
/// memory, unless components of its classes are still there. Its editors and add-ins must have
/// ended before.
class VCL_API TPackage {
 public:
  /// Loads the DLL and calls its registration entry point. Raises EPackageError when the file
  /// cannot be loaded, has no such entry point, or its registration fails; nothing stays registered
  /// then.
  explicit TPackage(const std::string& fileName);
  ~TPackage();
  TPackage(const TPackage&) = delete;
  TPackage& operator=(const TPackage&) = delete;

  /// Ends the package before the object ends. Raises EPackageError, with its name, when a component
  /// of its classes is still there; the package is as before then. Only FileName may be asked
  /// afterwards.
  void Unload();
  const std::string& FileName() const { return FFileName; }
  /// The classes that the package declares, in its own order; empty when it does not list them.
  std::vector<const TClass*> Classes() const;

 private:
  std::optional<std::string> Register() const;
  std::string LiveComponent() const;
  void TakeBack();
  void Release();

  std::string FFileName;
  void* FModule = nullptr;
};

}  // namespace vcl
