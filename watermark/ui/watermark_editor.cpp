#include "watermark_editor.h"

#include "color_field.h"
#include "control.h"
#include "dialog_window.h"
#include "file_name_filter.h"
#include "font_menu.h"
#include "modal_dialog.h"
#include "notice.h"
#include "spin_field.h"
#include "ticket_values.h"
#include "tool_tip.h"
#include "watermark_editor_controls.h"
#include "watermark_preview.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace kelvo {

namespace {

class WatermarkEditor
{
public:
    WatermarkEditor(const Device &device, const _WatermarkData &watermark,
                    const WatermarkEditing &editing)
        : m_device(device)
        , m_editing(editing)
        , m_watermark(readyToEdit(watermark, editing.isCoverImage))
        , m_nameBefore(watermarkName(m_watermark))
    {
    }

    bool makeWindow(QWidget *parent);
    DialogResult run();
    _WatermarkData result() const { return edited(m_watermark); }

private:
    void connectPreview();
    // The user's edit; `isForced` where the drawing would not notice by itself.
    void changeTo(const _WatermarkData &watermark, bool isForced = false);
    void sync();
    void showPicture();
    void showPageBelow();

    OSStatus handle(const Event &event);
    bool take(const ControlID &control);
    void choosePicture();
    void takePicture(const QString &path);

    bool mayAccept();
    void say(WatermarkProblem problem);
    void refuse(const QString &message);
    bool mayReplace(const QString &name);

    QString text(const char *key) const { return m_device.text(key); }

    Device m_device;
    WatermarkEditing m_editing;
    _WatermarkData m_watermark; // text and picture both, whichever kind it is
    QString m_nameBefore;
    std::unique_ptr<ModalDialog> m_window;
    WatermarkEditorControls m_controls;
    std::unique_ptr<ColorField> m_color, m_fontColor;
    WatermarkPreview *m_preview = nullptr; // lives with its view
    _WatermarkData m_beforeDrag;
};

// ---- colors

QColor wellColor(const _WatermarkData &watermark)
{
    return QColor::fromRgbF(watermark.wellColorRed, watermark.wellColorGreen,
                            watermark.wellColorBlue);
}

QColor fontColor(const _WatermarkData &watermark)
{
    return QColor::fromRgbF(watermark.fontColorRed, watermark.fontColorGreen,
                            watermark.fontColorBlue);
}

_WatermarkData withWellColor(_WatermarkData watermark, const QColor &color)
{
    watermark.wellColorRed = color.redF();
    watermark.wellColorGreen = color.greenF();
    watermark.wellColorBlue = color.blueF();
    watermark.wellColorAlpha = 1; // density says how much shows through
    return watermark;
}

_WatermarkData withFontColor(_WatermarkData watermark, const QColor &color)
{
    watermark.fontColorRed = color.redF();
    watermark.fontColorGreen = color.greenF();
    watermark.fontColorBlue = color.blueF();
    watermark.fontColorAlpha = 1;
    return watermark;
}

// ---- the window

bool WatermarkEditor::makeWindow(QWidget *parent)
{
    m_window = createModalDialog(
        m_device.bundle, QStringLiteral("WatermarkEditor"), QStringLiteral("Window"), parent,
        [this](NeededControls &needed) { m_controls = findWatermarkEditorControls(needed); });
    if (!m_window)
        return false;
    m_window->setWindowTitle(localizedText(m_device.bundle, m_editing.titleKey));
    fillWatermarkEditorControls(m_controls, m_device);
    m_color = std::make_unique<ColorField>(
        m_controls.colorWell, m_controls.color,
        [this](const QColor &color) { changeTo(withWellColor(m_watermark, color), true); });
    m_fontColor = std::make_unique<ColorField>(
        m_controls.fontColorWell, m_controls.fontColor,
        [this](const QColor &color) { changeTo(withFontColor(m_watermark, color)); });
    connectPreview();
    const bool hasPage = !m_editing.firstPage.pdfPath.isEmpty();
    m_controls.overPage->setEnabled(hasPage);
    m_controls.overPage->setChecked(hasPage);
    if (!hasPage)
        setPlainToolTip(m_controls.overPage, text("Watermark No Page"));
    showPageBelow();
    showWatermarkFont(m_controls, m_device, m_watermark);
    changeTo(m_watermark, true);
    (m_watermark.isText ? static_cast<QWidget *>(m_controls.text) : m_controls.picture)->setFocus();
    return true;
}

void WatermarkEditor::connectPreview()
{
    PaperView *view = m_controls.preview;
    m_preview = new WatermarkPreview(view);
    QObject::connect(&m_preview->picture(), &PictureReading::changed, view,
                     [this] { showPicture(); });
    QObject::connect(view, &PaperView::dragBegan, view, [this] { m_beforeDrag = m_watermark; });
    QObject::connect(view, &PaperView::dragged, view, [this](const QPointF &by) {
        _WatermarkData moved = m_watermark;
        moved.xOffset = movedOffset(m_beforeDrag.xOffset, by.x(), moved.units);
        moved.yOffset = movedOffset(m_beforeDrag.yOffset, by.y(), moved.units);
        changeTo(moved);
    });
    QObject::connect(view, &PaperView::nudged, view, [this](int right, int up) {
        _WatermarkData moved = m_watermark;
        if (right != 0)
            moved.xOffset = nudgedOffset(moved.xOffset, right, moved.units);
        if (up != 0)
            moved.yOffset = nudgedOffset(moved.yOffset, up, moved.units);
        changeTo(moved);
    });
}

DialogResult WatermarkEditor::run()
{
    m_window->setAcceptRule([this] { return mayAccept(); });
    const EventHandlerRef handler =
        installEventHandler(m_window.get(), [this](const Event &event) { return handle(event); });
    return m_window->runModal();
}

// ---- from the record to what is seen

void WatermarkEditor::changeTo(const _WatermarkData &watermark, bool isForced)
{
    const bool isOtherFont = textOf(watermark.fontName) != textOf(m_watermark.fontName);
    m_watermark = watermark;
    if (isOtherFont)
        showWatermarkFont(m_controls, m_device, watermark);
    m_preview->setPictureOpacity(m_editing.isCoverImage ? watermark.density / 100.0 : 1);
    m_preview->renderWatermarkIfNecessary(edited(watermark), isForced);
    m_watermark.xPos = m_preview->shown().xPos;
    m_watermark.yPos = m_preview->shown().yPos;
    sync();
}

void WatermarkEditor::sync()
{
    showWatermark(m_controls, m_device, m_watermark, m_editing.isCoverImage);
    m_color->show(wellColor(m_watermark));
    m_fontColor->show(fontColor(m_watermark));
    showPicture();
}

void WatermarkEditor::showPicture()
{
    QString name = textOf(m_watermark.filename);
    QString hint = text("Watermark Picture Formats");
    switch (m_preview->picture().state()) {
    case PictureState::None:
        break;
    case PictureState::Reading:
        hint = text("Watermark Picture Reading");
        break;
    case PictureState::Read:
        hint = pictureSizeText(m_device, m_preview->picture().picture().naturalSize, m_watermark);
        break;
    case PictureState::Unreadable:
        hint = m_preview->picture().problem().detail;
        break;
    }
    if (name.isEmpty())
        name = text("Watermark Picture None");
    m_controls.pictureName->setText(name);
    m_controls.pictureHint->setText(hint);
    setPlainToolTip(m_controls.pictureHint, hint); // a long reason is cut
    m_controls.preview->setAccessibleDescription(watermarkName(m_watermark));
}

void WatermarkEditor::showPageBelow()
{
    m_preview->setPageBelow(m_controls.overPage->isChecked() ? m_editing.firstPage
                                                             : DocumentPage());
}

// ---- from the controls to the record

OSStatus WatermarkEditor::handle(const Event &event)
{
    switch (event.kind) {
    case EventKind::ControlHit:
        // What was typed and not left yet would be shown as it was before.
        commitTypedValues(m_window.get());
        return take(event.control) ? noErr : eventNotHandledErr;
    case EventKind::Menu: {
        if (event.control != kEditorFontSizes)
            return eventNotHandledErr;
        _WatermarkData sized = m_watermark;
        sized.fontSize = event.reference;
        changeTo(sized, true);
        return noErr;
    }
    case EventKind::TextChanged:
        if (event.control == kEditorText) {
            _WatermarkData worded = m_watermark;
            setText(worded.textString, m_controls.text->text());
            changeTo(worded);
            return noErr;
        }
        if (event.control == kEditorColor)
            m_color->takeTyped();
        else if (event.control == kEditorFontColor)
            m_fontColor->takeTyped();
        return eventNotHandledErr;
    default:
        return eventNotHandledErr;
    }
}

// False where the control is none of the record's.
bool WatermarkEditor::take(const ControlID &control)
{
    _WatermarkData next = m_watermark;
    bool isForced = false;
    if (control == kEditorKind) {
        next.isText = m_controls.kind->value() == kKindText ? 1 : 0;
        isForced = true;
    } else if (control == kEditorFont) {
        setText(next.fontName, chosenFont(m_controls.font));
    } else if (control == kEditorFontSize) {
        next.fontSize = m_controls.fontSize->value();
        isForced = true;
    } else if (control == kEditorAngle) {
        next.angle = wrappedAngle(m_controls.angle->value());
    } else if (control == kEditorAngleDial) {
        next.angle = m_controls.angleDial->value();
    } else if (control == kEditorDensity) {
        next.density = m_controls.density->value();
    } else if (control == kEditorX) {
        next.xOffset = offsetOf(m_controls.x->value(), next.units);
    } else if (control == kEditorY) {
        next.yOffset = offsetOf(m_controls.y->value(), next.units);
    } else if (control == kEditorUnits) {
        next.units = m_controls.units->chosenReference();
    } else if (control == kEditorCenter) {
        next.xOffset = next.yOffset = 0;
    } else if (control == kEditorScale) {
        next.scale = m_controls.scale->value();
    } else if (control == kEditorColorWell) {
        m_color->choose();
        return true;
    } else if (control == kEditorFontColorWell) {
        m_fontColor->choose();
        return true;
    } else if (control == kEditorPicture) {
        choosePicture();
        return true;
    } else if (control == kEditorOverPage) {
        showPageBelow();
        return true;
    } else {
        return false;
    }
    changeTo(next, isForced);
    return true;
}

void WatermarkEditor::choosePicture()
{
    const QString before = textOf(m_watermark.filePath);
    QFileDialog chooser(m_window.get(), text("Watermark Picture Chooser"));
    chooser.setObjectName(QStringLiteral("pictureChooser"));
    chooser.setFileMode(QFileDialog::ExistingFile);
    chooser.setNameFilters(
        {fileNameFilter(text("Watermark Picture Kinds"),
                        {"png", "jpg", "jpeg", "gif", "bmp", "tif", "tiff", "svg"}),
         fileNameFilter(text("Watermark All Files"), {})});
    chooser.setDirectory(before.isEmpty()
                             ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)
                             : QFileInfo(before).absolutePath());
    // At once: whoever comes next finds the picture, or that it is being read.
    QObject::connect(&chooser, &QFileDialog::fileSelected, &chooser,
                     [this](const QString &path) { takePicture(path); });
    runChooser(chooser);
}

void WatermarkEditor::takePicture(const QString &path)
{
    const QFileInfo file(path);
    _WatermarkData next = m_watermark;
    setText(next.filename, file.fileName());
    setText(next.filePath, file.absoluteFilePath());
    m_preview->picture().forget(); // the same file may be another one now
    changeTo(next, true);
}

// ---- OK

bool WatermarkEditor::mayAccept()
{
    for (ColorField *color : {m_color.get(), m_fontColor.get()}) {
        if (m_watermark.isText && !color->isColor()) {
            refuse(text("Watermark No Color"));
            color->focus();
            return false;
        }
    }
    const _WatermarkData watermark = result();
    const QString name = watermarkName(watermark);
    const WatermarkProblem problem = findProblem(watermark, m_preview->picture().state(),
                                                 problemOfName(m_editing.fileName, name));
    if (problem == WatermarkProblem::None)
        return mayReplace(name);
    say(problem);
    return false;
}

void WatermarkEditor::say(WatermarkProblem problem)
{
    const QString name = watermarkName(m_watermark);
    QString message;
    switch (problem) {
    case WatermarkProblem::None:
        return;
    case WatermarkProblem::NoText:
        message = text("Watermark No Text");
        break;
    case WatermarkProblem::NoPicture:
        message = text("Watermark No Picture");
        break;
    case WatermarkProblem::PictureIsRead:
        message = text("Watermark Picture Still Read");
        break;
    case WatermarkProblem::PictureUnreadable:
        message = text("Watermark Picture Unreadable").arg(m_preview->picture().problem().text());
        break;
    case WatermarkProblem::NameReserved:
        message = text("Watermark Name Reserved").arg(name);
        break;
    case WatermarkProblem::NameIsFont:
        message = text("Watermark Name Is Font").arg(name);
        break;
    }
    refuse(message);
    (m_watermark.isText ? static_cast<QWidget *>(m_controls.text) : m_controls.picture)->setFocus();
}

void WatermarkEditor::refuse(const QString &message)
{
    CFUserNotificationDisplayNotice(NoticeLevel::Caution, text("Watermark Refused Header"), message,
                                    {}, m_window.get());
}

// Another entry of that name would go.
bool WatermarkEditor::mayReplace(const QString &name)
{
    QStringList names;
    loadWatermarkList(m_editing.fileName, &names);
    names.removeAll(m_nameBefore);
    if (name == m_nameBefore || !names.contains(name, Qt::CaseInsensitive))
        return true;
    return CFUserNotificationDisplayAlert(
               NoticeLevel::Caution, text("Watermark Replace Header").arg(name),
               text("Watermark Replace Message"),
               {text("Watermark Replace"), text("Cancel Command")}, m_window.get())
        == 1;
}

} // namespace

DialogResult RunModalWatermarkEditor(const Device &device, _WatermarkData *watermark,
                                     const WatermarkEditing &editing, QWidget *parent)
{
    if (!watermark || !device.bundle)
        return DialogResult::Cancel;
    WatermarkEditor editor(device, *watermark, editing);
    if (!editor.makeWindow(parent) || editor.run() != DialogResult::OK)
        return DialogResult::Cancel;
    *watermark = editor.result();
    return DialogResult::OK;
}

} // namespace kelvo
