#pragma once

#include "bundle.h"
#include "plugin_abi.h"
#include "result.h"

#include <QString>

// What getters of panels give, and what becomes of it.
namespace kelvo {

// A fresh interface with slots 4 to 10 of `operations`; the first three are
// null. What a panel's getter returns; the caller owns it.
PanelInterface *makePanelInterface(const PanelOperations &operations);
// The same for the getter's caller, at `interface`; paramErr for null.
OSStatus givePanelInterface(const PanelOperations &operations, PanelInterface **interface);

// Slots 4 to 10 are all there.
bool isComplete(const PanelOperations &operations);

// The slots of the panel behind a getter of `bundle`, the first three null; the
// interface itself is freed. The error's detail says why there is none; NotFound: the
// module has no such getter.
Result<PanelOperations> findPanelOperations(Bundle &bundle, const QString &getter);

// "GetAdvancedPanelInterface" → "Advanced"; any other name as it is.
QString panelNameOf(const QString &getter);

} // namespace kelvo
