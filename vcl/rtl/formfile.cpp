// Form files as a whole: which form a file has, reading it with errors that name it, and writing
// it.
#include "vcl/rtl/formfile.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formformat.h"
#include "vcl/rtl/reader.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/writer.h"

namespace vcl {
namespace {

/// Hands a reader over the form file that the rest of a stream is, in whichever form, to `read`.
template <class Read>
void WithReader(TStream& stream, TReaderKeeper* keeper, const Read& read) {
  TStringStream source(stream.ReadRest());
  TFormLines lines;
  TMemoryStream converted;
  const bool binary = IsBinaryForm(source.DataString());
  if (!binary) {
    ObjectTextToBinary(source, converted, &lines);
    converted.SetPosition(0);
  }
  TMemoryStream& form = binary ? source : converted;
  TReader reader(form);
  reader.SetKeeper(keeper);
  if (!binary) reader.SetLineOf([&](std::int64_t offset) { return lines.LineOf(offset); });
  read(reader);
}

template <class Error>
[[noreturn]] void RaiseNamed(const std::string& name, const Error& error) {
  throw Error(name.empty() ? error.Message() : Concat(name, ": ", error.Message()));
}

/// Runs `read`, and has what it raises begin with the name.
template <class Read>
void Naming(const std::string& name, const Read& read) {
  try {
    read();
  } catch (const EParserError& error) {
    RaiseNamed(name, error);
  } catch (const EClassNotFound& error) {
    RaiseNamed(name, error);
  } catch (const EReadError& error) {
    RaiseNamed(name, error);
  }
}

}  // namespace

bool IsBinaryForm(std::string_view bytes) { return bytes.starts_with(FormSignature); }

TComponent* ReadComponentFile(TStream& stream, TComponent* root, const std::string& name,
                              TReaderKeeper* keeper) {
  TComponent* read = nullptr;
  Naming(name, [&] {
    WithReader(stream, keeper, [&](TReader& reader) { read = reader.ReadRootFile(root); });
  });
  return read;
}

TComponent* ReadComponentFile(const std::string& fileName, TComponent* root) {
  TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
  return ReadComponentFile(file, root, fileName);
}

void ReadComponentsInto(TStream& stream, TComponent* owner, TComponent* parent,
                        const std::function<void(TComponent*)>& made, TReaderKeeper* keeper) {
  WithReader(stream, keeper, [&](TReader& reader) { reader.ReadComponents(owner, parent, made); });
}

namespace {

void WriteRoot(TStream& stream, TComponent* root, const std::string& className,
               const TFormAncestry& ancestry) {
  TWriter writer(stream);
  writer.SetRootClassName(className);
  writer.SetAncestry(ancestry);
  writer.WriteRootComponent(root);
}

void WriteRootText(TStream& stream, TComponent* root, const std::string& className,
                   const TFormAncestry& ancestry) {
  TMemoryStream binary;
  WriteRoot(binary, root, className, ancestry);
  binary.SetPosition(0);
  ObjectBinaryToText(binary, stream);
}

}  // namespace

void WriteComponentBinary(TStream& stream, TComponent* root, const std::string& className) {
  WriteRoot(stream, root, className, {});
}

void WriteComponentText(TStream& stream, TComponent* root, const std::string& className) {
  WriteRootText(stream, root, className, {});
}

void WriteComponentBinary(TStream& stream, TComponent* root, const TFormAncestry& ancestry) {
  WriteRoot(stream, root, {}, ancestry);
}

void WriteComponentText(TStream& stream, TComponent* root, const TFormAncestry& ancestry) {
  WriteRootText(stream, root, {}, ancestry);
}

void WriteComponentsText(TStream& stream, const std::vector<TComponent*>& components,
                         TComponent* root, const TFormAncestry& ancestry) {
  TMemoryStream binary;
  TWriter writer(binary);
  // Copies descend from nothing.
  writer.SetAncestry({nullptr, ancestry.MakeFrame});
  for (TComponent* component : components) writer.WriteComponent(component, root);
  binary.SetPosition(0);
  if (!components.empty()) ObjectBinaryToText(binary, stream);
}

}  // namespace vcl
