#include "asked_option.h"

namespace kelvo {

OptionValue meaningOf(const AskedOption &option,
                      const std::function<bool(const QString &name)> &isKnown)
{
    if (option.value)
        return {option.name, *option.value};
    const QString no = QStringLiteral("no");
    const QString negated = option.name.mid(no.size());
    if (!isKnown(option.name) && option.name.startsWith(no, Qt::CaseInsensitive)
        && isKnown(negated))
        return {negated, QStringLiteral("false")};
    return {option.name, QStringLiteral("true")};
}

} // namespace kelvo
