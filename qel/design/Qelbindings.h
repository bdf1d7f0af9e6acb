// Which of the package's editors is for which property and which component.
#pragma once

namespace qel {

/// Registers the property editors and then the component editors, in the tables' order.
void RegisterEditors();

}  // namespace qel
