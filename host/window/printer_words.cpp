#include "printer_words.h"

#include "texts.h"

#include <QStringList>

namespace kelvo {

namespace {

QStringList withoutEmpty(QStringList texts)
{
    texts.removeAll(QString());
    return texts;
}

// Where nobody has described a queue, its description is its name.
QString ownDescription(const Printer &printer)
{
    return printer.info.compare(printer.name, Qt::CaseInsensitive) == 0 ? QString() : printer.info;
}

} // namespace

QString printerStateText(const PrinterCondition &condition)
{
    if (!condition.acceptsJobs)
        return translate("Printers", "takes no jobs");
    switch (condition.state) {
    case PrinterCondition::State::Idle:
        return translate("Printers", "idle");
    case PrinterCondition::State::Busy:
        return translate("Printers", "printing");
    case PrinterCondition::State::Stopped:
        return translate("Printers", "stopped");
    }
    Q_UNREACHABLE();
}

QString printerConditionText(const PrinterCondition &condition)
{
    const QString state = printerStateText(condition);
    return condition.stateMessage.isEmpty()
        ? state
        : translate("Printers", "%1: %2", "a printer’s state and why")
              .arg(state, condition.stateMessage);
}

QString printerAndState(const Printer &printer)
{
    return translate("Printers", "%1 (%2)", "printer and its state")
        .arg(printer.name, printerStateText(printer));
}

QString placeAndModel(const Printer &printer)
{
    QStringList parts =
        withoutEmpty({printer.location, printer.makeAndModel, ownDescription(printer)});
    constexpr QChar isolate(0x2068), popIsolate(0x2069);
    for (QString &part : parts)
        part = isolate + part + popIsolate;
    return parts.join(QStringLiteral(" · "));
}

QString printerInFull(const Printer &printer)
{
    return withoutEmpty({translate("Printers", "%1: %2", "printer and its state")
                             .arg(printer.name, printerStateText(printer)),
                         printer.stateMessage, printer.info, printer.location,
                         printer.makeAndModel})
        .join(u'\n');
}

QString printerAsHeard(const Printer &printer, bool isChosen)
{
    return separated(
        withoutEmpty({printer.name, isChosen ? translate("Printers", "chosen") : QString(),
                      printer.isDefault ? translate("Printers", "default") : QString(),
                      printerConditionText(printer), printer.location, printer.makeAndModel,
                      ownDescription(printer)}));
}

} // namespace kelvo
