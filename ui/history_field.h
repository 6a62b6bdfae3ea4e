#pragma once

#include <QComboBox>

#include <memory>

namespace kelvo {

class ControlInterface;

// The widget of a combo box with history: an editable list of fixed items and
// typed texts. Rules live with its owner. Sends TextChanged while typing,
// ControlHit when an item is chosen and FocusChanged when it is left.
class HistoryField : public QComboBox
{
    Q_OBJECT

public:
    explicit HistoryField(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text); // silent
    QStringList items() const;
    bool appendItem(const QString &text);

    bool chooseItem(int row); // from 0, as the user

protected:
    void showEvent(QShowEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

std::unique_ptr<ControlInterface> interfaceOf(HistoryField *field);

} // namespace kelvo
