#pragma once

#include "plugin_abi.h"

namespace kelvo {

// A fresh interface whose first three slots are null and whose others are
// `operations`' own: what every panel's getter returns. Owned by the caller.
inline PanelInterface *makePanelInterface(const PanelOperations &operations)
{
    auto *table = new PanelOperations(operations);
    table->Retain = nullptr;
    table->Release = nullptr;
    table->GetAPIVersion = nullptr;
    return new PanelInterface{table, 1};
}

} // namespace kelvo
