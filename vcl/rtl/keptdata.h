// TKeptData: what a form file says of an object and the object does not know, kept by a designer so
// that it goes back into the file; TReaderKeeper, which a reader asks to keep it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/api.h"

namespace vcl {

class TComponent;

/// A property as the binary form has it.
struct TKeptProperty {
  std::string Name;
  /// The value's bytes, its sort in front.
  std::string Value;
  /// The property that stood in front of it; empty for the first.
  std::string After;
};

/// What is kept of one component or item of a collection.
struct TKeptData {
  /// The class that the file gives a component which stands in for one of that class; empty for a
  /// component of its own class.
  std::string ClassName;
  /// True when the component stands in for a frame.
  bool Inline = false;
  std::vector<TKeptProperty> Properties;
  /// The components inside, as bytes, and their names.
  std::string Children;
  std::vector<std::string> ChildNames;
};

/// What a reader does with what it can't use, where nothing may be lost; see TReader::SetKeeper.
class VCL_API TReaderKeeper {
 public:
  TReaderKeeper() = default;
  TReaderKeeper(const TReaderKeeper&) = delete;
  TReaderKeeper& operator=(const TReaderKeeper&) = delete;
  virtual ~TReaderKeeper();

  /// Hears of everything that could not be used; the message begins with its place in the file.
  virtual void Report(const std::string& message) = 0;
  /// Makes a component that stands for one whose class is missing or whose constructor raised.
  /// `visual` says that the file gives it a width, as it does controls.
  virtual TComponent* MakeStandIn(TComponent* owner, bool visual) = 0;
  /// Makes a frame of that class as its own form file has it; null when frames are of classes that
  /// the program itself has.
  virtual TComponent* MakeFrame(const std::string& className, TComponent* owner);
  /// The form of that name that references may lead to though nothing owns it and the one being
  /// read; null for none.
  virtual TComponent* FindForm(std::string_view name) const;
};

}  // namespace vcl
