#include "k_combo_box.h"

#include "event.h"
#include "input_limits.h"
#include "ticket_values.h"

#include <QHash>
#include <QLocale>

#include <memory>

namespace kelvo {

namespace {

constexpr OSType kContextCreator = fourCharCode("KCMB");
constexpr OSType kContextTag = fourCharCode("ctxt");

struct KComboBoxContext
{
    KComboBoxOptions options;                 // the lengths of a numeric field computed
    QHash<QString, std::int32_t> valueOfText; // of the map's items
    QHash<std::int32_t, QString> textOfValue;
    EventHandlerRef leaving;
};
using ContextRef = std::shared_ptr<KComboBoxContext>;

ContextRef findContext(const HistoryField *comboBox)
{
    const auto property = controlProperty(comboBox, kContextCreator, kContextTag);
    return property ? property->value<ContextRef>() : nullptr;
}

void clamp(HistoryField *comboBox, const KComboBoxContext &context)
{
    const QString text = comboBox->text();
    if (context.options.kind != kComboBoxNumeric || context.valueOfText.contains(text))
        return;
    const QString clamped = withinRange(text, context.options);
    if (clamped != text)
        comboBox->setText(clamped);
}

// Every row, whatever is installed. False when the field took no more.
bool appendMapItems(HistoryField *comboBox, KComboBoxContext &context)
{
    const KComboBoxOptions &options = context.options;
    if (!options.map || !options.bundle)
        return true;
    for (const SettingMap *row = options.map; row->localizedKey; ++row) {
        const QString text = localizedText(options.bundle, QString::fromUtf8(row->localizedKey));
        context.valueOfText.insert(text, row->ticketValue);
        context.textOfValue.insert(row->ticketValue, text);
        if (!comboBox->appendItem(text))
            return false;
    }
    return true;
}

bool appendHistoryItems(HistoryField *comboBox, const KComboBoxOptions &options)
{
    if (options.historyKey.isEmpty())
        return true;
    bool allAppended = true;
    for (const QString &item : readHistory(options.historyKey)) {
        if (isValidHistoryItem(item, options))
            allAppended = comboBox->appendItem(item) && allAppended;
    }
    return allAppended;
}

void limitTyping(HistoryField *comboBox, KComboBoxOptions &options)
{
    InputLimits limits{options.minimumLength, options.maximumLength, options.allowed};
    if (options.kind == kComboBoxNumeric) {
        options.maximumLength = maximumLengthForNumbers(options.maximumValue);
        limits.maximumLength = options.maximumLength;
        limits.allowed = InputLimits::decimalDigits();
    }
    if (options.kind == kComboBoxNumeric || options.kind == kComboBoxText)
        setInputLimits(comboBox, limits);
}

} // namespace

OSStatus KComboBoxInitializeWithMapAndHistory(HistoryField *comboBox,
                                              const KComboBoxOptions &options)
{
    if (!comboBox)
        return paramErr;
    const auto context = std::make_shared<KComboBoxContext>();
    context->options = options;
    setControlProperty(comboBox, kContextCreator, kContextTag, QVariant::fromValue(context));

    const bool mapAppended = appendMapItems(comboBox, *context);
    limitTyping(comboBox, context->options);
    const bool historyAppended = appendHistoryItems(comboBox, context->options);
    // The handler hangs on the field, so the field is there whenever it is called.
    context->leaving = installEventHandler(comboBox, [comboBox](const Event &event) {
        const ContextRef current = findContext(comboBox);
        if (event.kind == EventKind::FocusChanged && current)
            clamp(comboBox, *current);
        return eventNotHandledErr;
    });
    return mapAppended && historyAppended ? noErr : paramErr;
}

OSStatus KComboBoxCopyValue(HistoryField *comboBox, QVariant *out)
{
    if (!comboBox || !out)
        return paramErr;
    const ContextRef context = findContext(comboBox);
    if (!context)
        return kNoSuchProperty;
    clamp(comboBox, *context);

    const QString text = comboBox->text();
    const auto mapValue = context->valueOfText.constFind(text);
    if (mapValue != context->valueOfText.constEnd()) {
        *out = QVariant::fromValue<qint64>(*mapValue);
        return noErr;
    }
    if (text.isEmpty())
        return kComboBoxNoValue;
    if (context->options.kind != kComboBoxNumeric) {
        *out = text;
        return noErr;
    }
    const std::optional<std::int64_t> number = numberTyped(text);
    if (!number)
        return paramErr;
    *out = QVariant::fromValue<qint64>(*number);
    return noErr;
}

OSStatus KComboBoxSetValue(HistoryField *comboBox, const QVariant &value)
{
    if (!comboBox || !value.isValid())
        return paramErr;
    const ContextRef context = findContext(comboBox);
    if (!context)
        return kNoSuchProperty;
    if (const std::optional<QString> text = string(value)) {
        comboBox->setText(*text);
        return noErr;
    }
    const std::optional<std::int64_t> number = integer64(value);
    if (!number)
        return paramErr;
    const std::optional<std::int32_t> mapValue = integer32(value);
    if (mapValue && context->textOfValue.contains(*mapValue))
        comboBox->setText(context->textOfValue.value(*mapValue));
    else
        comboBox->setText(QLocale().toString(static_cast<qlonglong>(*number)));
    return noErr;
}

OSStatus KComboBoxFinalize(HistoryField *comboBox, bool saveToHistory)
{
    if (!comboBox)
        return paramErr;
    const ContextRef context = findContext(comboBox);
    if (!context)
        return kNoSuchProperty;
    const KComboBoxOptions &options = context->options;
    const QString text = comboBox->text();
    // What could not be saved has been said on standard error; the job goes on.
    if (saveToHistory && !options.historyKey.isEmpty() && !text.isEmpty()
        && !comboBox->items().contains(text))
        saveHistory(options.historyKey, text, options.historyLimit);
    context->leaving.remove();
    removeControlProperty(comboBox, kContextCreator, kContextTag);
    return noErr;
}

} // namespace kelvo
