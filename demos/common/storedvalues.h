// Settings that may be missing in a store.
#pragma once

#include <string>

#include "qel/core/Qeltstoredata.h"

namespace demos {

/// Reads values that stay as they are where the store has none: it gives its error value then.
struct TStoredValues {
  qel::TQELDataStore& Store;

  bool Bool(const char* name, bool value) const {
    Store.SetErrorBool(value);
    return Store.ReadBool(name);
  }
  int Int(const char* name, int value) const {
    Store.SetErrorInt(value);
    return Store.ReadInt(name);
  }
  std::string Str(const char* name, const std::string& value) const {
    Store.SetErrorStr(value);
    return Store.ReadStr(name);
  }
};

}  // namespace demos
