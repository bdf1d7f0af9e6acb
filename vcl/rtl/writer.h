// TWriter: writes components into a form file in its binary form.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "vcl/rtl/filer.h"
#include "vcl/rtl/formformat.h"

namespace vcl {

class TCollection;
class TComponent;

/// What a form file is written as the difference from.
struct TFormAncestry {
  /// What the root descends from, as its own form file makes it; null for nothing.
  TComponent* Root = nullptr;
  /// Makes the frame as its own form file does; when there is none, its class makes it.
  std::function<std::unique_ptr<TComponent>(const TComponent& frame)> MakeFrame;
};

/// Writes a form file: of each object the published properties that are stored and differ from
/// their declared defaults, then what the object defines itself. Of a component that the root's
/// ancestor has, or a frame's own form file, it writes what differs from that. References are
/// written by name; one to a component without a name is left out. Raises EWriteError for what
/// cannot be kept, and then the stream holds nothing of the component.
class VCL_API TWriter : public TFiler {
 public:
  /// Writes from the stream's position on; the stream must outlive the writer.
  explicit TWriter(TStream& stream);
  ~TWriter() override;

  /// The class that the file shall give the root; empty for the root's own. A designer's root has
  /// another class than the form that it stands for.
  void SetRootClassName(std::string name);
  /// What the root and its frames descend from.
  void SetAncestry(TFormAncestry ancestry);
  /// Writes the component, everything that it shows inside itself, and the signature in front.
  void WriteRootComponent(TComponent* root);
  /// Writes one component of `root`'s, with the signature in front, as a designer's copy does.
  void WriteComponent(TComponent* component, TComponent* root);
  /// Writes a component's published and defined properties and its children; for overriders of
  /// TComponent::WriteState.
  void WriteData(TComponent* component);

  void DefineProperty(const std::string& name, const TReaderProc& read, const TWriterProc& write,
                      bool hasData) override;
  void DefineBinaryProperty(const std::string& name, const TStreamProc& read,
                            const TStreamProc& write, bool hasData) override;

  void WriteInteger(std::int64_t value);
  void WriteBoolean(bool value);
  void WriteFloat(double value);
  void WriteString(std::string_view value);
  void WriteIdent(std::string_view ident);
  void WriteChar(char32_t value);
  void WriteListBegin();
  void WriteListEnd();
  void WriteCollection(TCollection& collection);

  /// The root of the file being written.
  TComponent* Root() const;

 private:
  struct TImpl;
  std::unique_ptr<TImpl> FImpl;
};

}  // namespace vcl
