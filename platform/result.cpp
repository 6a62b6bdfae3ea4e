#include "result.h"

#include "texts.h"

namespace kelvo {

QString Error::text() const
{
    return detail.isEmpty()
        ? where
        : translate("Words", "%1: %2", "where, and what is wrong there").arg(where, detail);
}

} // namespace kelvo
