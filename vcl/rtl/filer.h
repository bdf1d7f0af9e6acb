// What objects need to keep more in a form file than their published properties.
#pragma once

#include <functional>
#include <string>

#include "vcl/rtl/api.h"

namespace vcl {

class TReader;
class TStream;
class TWriter;

/// The reader or writer of a form file, as an object sees it that defines properties of its own
/// (`TPersistent::DefineProperties`). Reading, it calls the reader's half for the property that the
/// file holds; writing, it calls the writer's half where `hasData` is true.
class VCL_API TFiler {
 public:
  virtual ~TFiler();

  using TReaderProc = std::function<void(TReader&)>;
  using TWriterProc = std::function<void(TWriter&)>;
  using TStreamProc = std::function<void(TStream&)>;

  /// A property whose value is read and written with the methods of TReader and TWriter.
  virtual void DefineProperty(const std::string& name, const TReaderProc& read,
                              const TWriterProc& write, bool hasData) = 0;
  /// A property whose value is a block of bytes.
  virtual void DefineBinaryProperty(const std::string& name, const TStreamProc& read,
                                    const TStreamProc& write, bool hasData) = 0;
};

}  // namespace vcl
