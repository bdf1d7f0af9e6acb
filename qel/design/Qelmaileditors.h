// The editors of mails and of the files that travel with them.
#pragma once

#include "vcl/designintf/standardeditors.h"

namespace qel {

/// The attachments of a mail: a list of files, to which a dialog adds.
class TQELAttachmentProperty : public vcl::TCollectionProperty {
 public:
  using TCollectionProperty::TCollectionProperty;
  void Edit() override;
};

/// The mails of a component.
class TQELInetProperty : public vcl::TCollectionProperty {
 public:
  using TCollectionProperty::TCollectionProperty;
  void Edit() override;
};

/// The files that a mail of the system's mail program takes along.
class TQELMapiAttachmentProperty : public vcl::TCollectionProperty {
 public:
  using TCollectionProperty::TCollectionProperty;
  void Edit() override;
};

/// The mails for the system's mail program.
class TQELMapiProperty : public vcl::TCollectionProperty {
 public:
  using TCollectionProperty::TCollectionProperty;
  void Edit() override;
};

}  // namespace qel
