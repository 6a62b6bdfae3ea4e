#pragma once

#include "control_interface.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QPlainTextEdit>

class QAbstractSlider;
class QGroupBox;
class QLabel;
class QLineEdit;
class QTextEdit;

// The interfaces of Qt's own widgets, for this library's controls to begin with.
namespace kelvo {

class ButtonInterface : public InterfaceOf<QAbstractButton>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override;
    std::optional<int> value() const override;
    std::optional<bool> isChecked() const override;
    QString commands() const override;
    Result<void> click() override;
    Result<void> check(bool on) override;
    void localize(const Localizer &localized) override;
    void setTitle(const QString &title) override { widget()->setText(title); }
    bool showsMnemonics() const override { return true; }
    void sendEvents() override;
};

class ComboBoxInterface : public InterfaceOf<QComboBox>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->currentText(); }
    std::optional<int> index() const override { return widget()->currentIndex() + 1; }
    const Menu *menu() override;
    bool hasPlainItems() const override { return true; }
    QString commands() const override { return QStringLiteral("choose"); }
    bool choose(const MenuItem &item) override;
    void sendEvents() override;
    bool takesText() const override { return widget()->isEditable(); }
    void keepWithin(const InputLimits &limits) override;
    bool enter(const QString &text) override;

protected:
    int chosenRow(const MenuItem &item) const { return rowOf(m_menu, item); } // from 1

private:
    Menu m_menu; // the texts of the box, filled when it is asked for
};

class PlainTextInterface : public InterfaceOf<QPlainTextEdit>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->toPlainText(); }
    QString commands() const override { return QStringLiteral("type"); }
    void localize(const Localizer &localized) override;
    void sendEvents() override;
    bool takesText() const override { return true; }
    void keepWithin(const InputLimits &limits) override;
    bool enter(const QString &text) override;
};

class SpinBoxInterface : public InterfaceOf<QAbstractSpinBox>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->text(); }
    void takeTypedText() override { widget()->interpretText(); }
};

std::unique_ptr<ControlInterface> interfaceOf(QAbstractButton *button);
std::unique_ptr<ControlInterface> interfaceOf(QAbstractSlider *slider);
std::unique_ptr<ControlInterface> interfaceOf(QAbstractSpinBox *box);
std::unique_ptr<ControlInterface> interfaceOf(QComboBox *box);
std::unique_ptr<ControlInterface> interfaceOf(QGroupBox *group);
std::unique_ptr<ControlInterface> interfaceOf(QLabel *label);
std::unique_ptr<ControlInterface> interfaceOf(QLineEdit *line);
std::unique_ptr<ControlInterface> interfaceOf(QPlainTextEdit *edit);
std::unique_ptr<ControlInterface> interfaceOf(QTextEdit *edit);

} // namespace kelvo
