// The registry of classes that form files may name.
#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "vcl/rtl/object.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

/// Makes the class known by its name. Registering one twice is registering it once; raises
/// EFilerError when another class has the name.
VCL_API void RegisterClass(const TClass& aClass);
VCL_API void RegisterClasses(std::initializer_list<const TClass*> classes);
/// Forgets the class, as a package does that is unloaded.
VCL_API void UnRegisterClass(const TClass& aClass);
/// The class of that name, compared without case; null when there is none.
VCL_API const TClass* GetClass(std::string_view name);
/// The class of that name. Raises EClassNotFound.
VCL_API const TClass& FindClass(std::string_view name);
/// All registered classes, by name.
VCL_API std::vector<const TClass*> RegisteredClasses();

}  // namespace vcl
