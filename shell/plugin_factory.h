#pragma once

#include "plugin_abi.h"

// The bundle's entry: a factory whose instances hand out the shell's panel
// interface.
namespace kelvo {

inline constexpr char kKelvoPDEFactoryUUID[] = "FD10ECA4-9139-48E2-B8BD-507DF7AA6E20";

// An instance with a reference count of 1, registered until its count reaches 0;
// null unless `typeUUID` is kPDEPlugInTypeUUID. `allocator` is not used.
//
// Its QueryInterface answers:
//   IUnknown         the instance itself, retained
//   PDE interface    a fresh PanelInterface, count 1, given back with its Release
//   anything else    null and kNoSuchInterface
KELVO_PLUGIN_EXPORT PlugInInstance *KelvoPDEPluginFactory(void *allocator, const QUuid &typeUUID);

} // namespace kelvo
