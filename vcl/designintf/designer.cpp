// TDesigner's destructor, which gives the class one home for its type information.
#include "vcl/designintf/designer.h"

namespace vcl {

TDesigner::~TDesigner() = default;

const TObject* TDesigner::AncestorOf(const TObject&) const { return nullptr; }

}  // namespace vcl
