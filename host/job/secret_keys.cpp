#include "secret_keys.h"

#include <functional>

namespace kelvo {

namespace {

// What becomes of one value: another one, or an invalid one that is taken out.
using Change = std::function<QVariant(const QVariant &)>;

bool isEmptyValue(const QVariant &value)
{
    if (!value.isValid())
        return true;
    if (const auto text = string(value))
        return text->isEmpty();
    if (const auto bytes = data(value))
        return bytes->isEmpty();
    return false;
}

// Every value below `value` that is no dictionary and no array, changed.
QVariant changedLeaves(const QVariant &value, const Change &change)
{
    if (auto entries = dictionary(value)) {
        for (QVariant &entry : *entries)
            entry = changedLeaves(entry, change);
        return *entries;
    }
    if (auto elements = array(value)) {
        for (QVariant &element : *elements)
            element = changedLeaves(element, change);
        return *elements;
    }
    return change(value);
}

// `value` with `change` applied to whatever lies at `steps` inside it.
QVariant changedAt(const QVariant &value, const QStringList &steps, const Change &change)
{
    if (steps.isEmpty())
        return change(value);
    const QString &step = steps.first();
    const QStringList rest = steps.mid(1);
    const bool all = step == QLatin1String("*");
    if (auto entries = dictionary(value)) {
        for (auto entry = entries->begin(); entry != entries->end();) {
            if (all || entry.key() == step)
                *entry = changedAt(*entry, rest, change);
            entry = entry->isValid() ? std::next(entry) : entries->erase(entry);
        }
        return *entries;
    }
    if (auto elements = array(value)) {
        bool isIndex = false;
        const int index = step.toInt(&isIndex);
        for (int at = 0; at < elements->size(); ++at) {
            if (all || (isIndex && at == index))
                (*elements)[at] = changedAt(elements->at(at), rest, change);
            else if (!isIndex) // a list in a dictionary's place hides nothing
                (*elements)[at] = changedAt(elements->at(at), steps, change);
        }
        elements->removeIf([](const QVariant &element) { return !element.isValid(); });
        return *elements;
    }
    return value;
}

void changeAt(Ticket &ticket, const QString &path, const Change &change)
{
    QStringList steps = path.split(u'/');
    const auto found = ticket.entries.find(steps.takeFirst());
    if (found == ticket.entries.end())
        return;
    found->second.value = changedAt(found->second.value, steps, change);
    if (!found->second.value.isValid())
        ticket.entries.erase(found);
}

TicketFile changed(TicketFile ticket, const QStringList &paths, const Change &change)
{
    for (const QString &path : paths) {
        changeAt(ticket.printSettings, path, change);
        changeAt(ticket.pageFormat, path, change);
    }
    return ticket;
}

QString textOf(const QVariant &value)
{
    if (const auto bytes = data(value))
        return QString::fromUtf8(*bytes);
    return value.toString();
}

// Whether one of the paths has its number; all are met where there is none.
bool isMet(const TicketFile &ticket, const Dictionary &values)
{
    bool found = values.isEmpty();
    for (auto wanted = values.cbegin(); wanted != values.cend(); ++wanted) {
        changed(ticket, {wanted.key()}, [&found, &wanted](const QVariant &value) {
            found = found || (integer64(value) && integer64(value) == integer64(*wanted));
            return value;
        });
    }
    return found;
}

} // namespace

SecretKeys secretKeysOf(const Bundle *bundle)
{
    if (!bundle)
        return {};
    const auto texts = [bundle](const QString &key) {
        QStringList list;
        for (const QVariant &value : array(bundle->info(), key).value_or(Array())) {
            if (const auto text = string(value); text && !text->isEmpty())
                list << *text;
        }
        return list;
    };
    return {
        texts(QStringLiteral("KelvoSecretTicketKeys")), texts(QStringLiteral("KelvoFaxTicketKeys")),
        dictionary(bundle->info(), QStringLiteral("KelvoFaxTicketValues")).value_or(Dictionary()),
        texts(QStringLiteral("KelvoOneJobTicketKeys"))};
}

QStringList secretValues(const TicketFile &ticket, const SecretKeys &keys)
{
    QStringList values;
    changed(ticket, keys.secretPaths, [&values](const QVariant &secret) {
        changedLeaves(secret, [&values](const QVariant &leaf) {
            if (!isEmptyValue(leaf))
                values << textOf(leaf);
            return leaf;
        });
        return secret;
    });
    values.removeDuplicates();
    return values;
}

bool holdsSecret(const TicketFile &ticket, const SecretKeys &keys)
{
    return !secretValues(ticket, keys).isEmpty();
}

bool isFax(const TicketFile &ticket, const SecretKeys &keys)
{
    bool found = false;
    changed(ticket, keys.faxKeys, [&found](const QVariant &value) {
        const auto entries = dictionary(value);
        const auto elements = array(value);
        // An empty list has nobody to send to.
        if (entries ? !entries->isEmpty() : elements ? !elements->isEmpty() : !isEmptyValue(value))
            found = true;
        return value;
    });
    return found && isMet(ticket, keys.faxValues);
}

TicketFile masked(TicketFile ticket, const SecretKeys &keys)
{
    return changed(std::move(ticket), keys.secretPaths, [](const QVariant &secret) {
        return changedLeaves(secret, [](const QVariant &leaf) -> QVariant {
            return isEmptyValue(leaf) ? leaf : QVariant(kMask);
        });
    });
}

TicketFile withoutSecrets(TicketFile ticket, const SecretKeys &keys)
{
    return changed(std::move(ticket), keys.secretPaths,
                   [](const QVariant &) { return QVariant(); });
}

TicketFile withoutOneJob(TicketFile ticket, const SecretKeys &keys)
{
    return changed(std::move(ticket), keys.oneJobPaths,
                   [](const QVariant &) { return QVariant(); });
}

} // namespace kelvo
