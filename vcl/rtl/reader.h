// TReader: makes components from a form file in its binary form.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "vcl/rtl/filer.h"
#include "vcl/rtl/formformat.h"

namespace vcl {

class TCollection;
class TComponent;
class TReaderKeeper;

/// Reads a form file. Its components are of classes that the root's class lists a field of, or that
/// are registered (RegisterClass). All methods raise EReadError, with the offset (and the line,
/// when the file came from a text) and what was wrong, for what they cannot read.
class VCL_API TReader : public TFiler {
 public:
  /// Reads from the stream's position on; the stream must outlive the reader.
  explicit TReader(TStream& stream);
  ~TReader() override;

  /// Tells the line of the text that the byte at an offset came from; 0 when it is not known. Set
  /// for a file that was converted from text, so that errors can name the line.
  void SetLineOf(std::function<int(std::int64_t offset)> lineOf);

  /// Goes on where a class, a property or a referred component is missing or refuses what the file
  /// gives it, and keeps that (keptdata.h) so that a writer puts it back. The keeper must outlive
  /// the reader; null raises instead.
  void SetKeeper(TReaderKeeper* keeper);

  /// Reads the file's root into `root`, whatever class the file gives it, or into a new component
  /// of the file's class when it is null (then the caller owns it), and everything in it; fills the
  /// fields of the root's class, binds its events, resolves references, and calls Loaded on all,
  /// the root first and then in the file's order. A root that is being designed has its events
  /// named and not bound. When anything fails, all that the reader made is freed before the
  /// exception leaves.
  ///
  /// What a property's setter raises leaves as an EReadError with the place; EClassNotFound and
  /// EAbort leave as they are.
  TComponent* ReadRootComponent(TComponent* root);
  /// The same for a stream that holds nothing else: anything behind the root is refused.
  TComponent* ReadRootFile(TComponent* root);
  /// Reads components, each with the signature in front, until the end of the stream or of the list
  /// into the given owner and parent, as a designer's paste does, and hands each that stands at the
  /// outermost level to `made` when all are whole. One whose name is taken gets another; references
  /// to components that are not there stay empty. When anything fails, none is left.
  void ReadComponents(TComponent* owner, TComponent* parent,
                      const std::function<void(TComponent*)>& made);

  /// Reads a component's published and defined properties; for overriders of
  /// TComponent::ReadState.
  void ReadData(TComponent* component);

  void DefineProperty(const std::string& name, const TReaderProc& read, const TWriterProc& write,
                      bool hasData) override;
  void DefineBinaryProperty(const std::string& name, const TStreamProc& read,
                            const TStreamProc& write, bool hasData) override;

  /// The sort of the next value, which stays unread.
  TValueType NextValue();
  std::int64_t ReadInteger();
  bool ReadBoolean();
  double ReadFloat();
  std::string ReadString();
  std::string ReadIdent();
  char32_t ReadChar();
  void ReadListBegin();
  void ReadListEnd();
  bool EndOfList();
  /// Reads a whole collection into `collection`, whose items it replaces.
  void ReadCollection(TCollection& collection);

  /// The root of the file being read.
  TComponent* Root() const;
  /// The class that the file gives its root; a designer's root is of another.
  const std::string& RootClassName() const;

 private:
  struct TImpl;
  std::unique_ptr<TImpl> FImpl;
};

}  // namespace vcl
