#include "about_dialog.h"

#include "about.h"
#include "control.h"
#include "device_pictures.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "pde_session.h"
#include "picture_view.h"
#include "pictures.h"
#include "print_session.h"
#include "summary_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <cstring>

namespace kelvo {

namespace {

constexpr ControlID kOKButton{kPanelSignature, 6714};
constexpr ControlID kPicture{kPanelSignature, 6715};
constexpr ControlID kCopyButton{kPanelSignature, 6716};
constexpr ControlID kCopyHint{kPanelSignature, 6717};
constexpr ControlID kLibraries{kPanelSignature, 6727};
constexpr ControlID kLibrariesHint{kPanelSignature, 6728};

// Where a line of the model is shown: its name and its value, KPDE.
struct Row
{
    const char *key;
    std::int32_t name, value;
};
constexpr Row rows[] = {
    {kAboutPanels, 6730, 6711},     {kAboutProgram, 6731, 6721},     {kAboutDevice, 6732, 6713},
    {kAboutPrinter, 6733, 6722},    {kAboutPpd, 6734, 6723},         {kAboutFitted, 6735, 6724},
    {kAboutPaperTrays, 6736, 6725}, {kAboutOutputTrays, 6737, 6726},
};

QString currentPrinter()
{
    PMPrinter printer = nullptr;
    return PMSessionGetCurrentPrinter(GetCurrentPrintSession(), &printer) == noErr && printer
        ? printer->name
        : QString();
}

// Texts that can be selected lie as their own language does, far from their names where the
// window does not.
void alignWithWindow(QLabel *label)
{
    const Qt::Alignment leading =
        QStyle::visualAlignment(label->layoutDirection(), Qt::AlignLeading);
    label->setAlignment(leading | Qt::AlignAbsolute | Qt::AlignTop);
}

void showLines(const QWidget *dialog, const std::vector<AboutLine> &lines)
{
    for (const Row &row : rows) {
        const auto line = std::ranges::find_if(
            lines, [&row](const AboutLine &each) { return std::strcmp(each.key, row.key) == 0; });
        auto *name = findControl<QLabel>(dialog, {kPanelSignature, row.name});
        auto *value = findControl<QLabel>(dialog, {kPanelSignature, row.value});
        if (!name || !value)
            continue;
        value->setText(line == lines.end() ? QString() : line->value);
        alignWithWindow(value);
        name->setVisible(line != lines.end());
        value->setVisible(line != lines.end());
    }
}

void showPicture(const QWidget *dialog, const Device &device)
{
    auto *view = findControl<PictureView>(dialog, kPicture);
    if (!view)
        return;
    QStringList files;
    for (const QString &picture : devicePictures(device))
        files << pictureFile(device.bundle->resourcesPath(), picture);
    view->setPictures(files, device.text("About Picture"));
}

} // namespace

void RunModalAboutDialog(const Device &device, QWidget *parent)
{
    if (!device.bundle)
        return;
    const auto dialog =
        createModalDialog(device.bundle, QStringLiteral("About"), QStringLiteral("Window"), parent,
                          {kLibraries, kCopyHint});
    if (!dialog)
        return;
    std::vector<AboutLine> lines = aboutVersions(device);
    std::ranges::copy(aboutDevice(device, currentPrinter()), std::back_inserter(lines));
    const QString libraries = aboutLibraries(device, usedLibraryVersions());

    showLines(dialog.get(), lines);
    showPicture(dialog.get(), device);
    findControl<SummaryView>(dialog.get(), kLibraries)->setSummary(libraries);
    auto *copyHint = findControl<QLabel>(dialog.get(), kCopyHint);
    makeHintText(copyHint);
    makeHintText(findControl<QLabel>(dialog.get(), kLibrariesHint));
    if (auto *ok = findControl<QPushButton>(dialog.get(), kOKButton))
        ok->setFocus(); // and not the first text that can be selected

    const EventHandlerRef handler = installEventHandler(dialog.get(), [&](const Event &event) {
        if (event.kind != EventKind::ControlHit || event.control != kCopyButton)
            return eventNotHandledErr;
        QString text = aboutText(device, lines);
        text += aboutText(device, aboutSystem(QGuiApplication::platformName()));
        text += device.text("About Libraries:") + u'\n' + libraries + u'\n';
        QGuiApplication::clipboard()->setText(text);
        copyHint->setMinimumHeight(copyHint->height()); // what is above stays where it is
        copyHint->setText(device.text("About Copied"));
        return noErr;
    });
    dialog->runModal();
}

} // namespace kelvo
