#include "plugin_abi.h"

// Says how often it was called: a module that was unloaded would begin anew.
KELVO_PLUGIN_EXPORT int countCalls()
{
    static int calls = 0;
    return ++calls;
}
