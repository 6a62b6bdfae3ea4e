#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace kelvo {

// One -o of the command line, as it was typed: NAME=VALUE, NAME or noNAME.
struct AskedOption
{
    QString name;
    std::optional<QString> value; // none: the name alone

    QString text() const { return value ? name + u'=' + *value : name; }
};

// What an AskedOption means.
struct OptionValue
{
    QString name, value;
};

// A name alone is read as the print server's programs read it: NAME is NAME=true, and noNAME is
// NAME=false unless `isKnown` also says so of noNAME.
OptionValue meaningOf(const AskedOption &option,
                      const std::function<bool(const QString &name)> &isKnown);

} // namespace kelvo
