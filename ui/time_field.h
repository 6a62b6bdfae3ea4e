#pragma once

#include <QTimeEdit>

#include <memory>

namespace kelvo {

class ControlInterface;

// A time of day in the user's notation, to the second when the locale shows
// seconds. Sends ControlHit when the user changes it.
class TimeField : public QTimeEdit
{
    Q_OBJECT

public:
    explicit TimeField(QWidget *parent = nullptr);

    void setValue(const QTime &time); // silent; seconds are kept even where they are not shown
    QTime value() const;
    bool choose(const QTime &time); // as the user; false when it cannot be changed

protected:
    void changeEvent(QEvent *event) override;
};

std::unique_ptr<ControlInterface> interfaceOf(TimeField *field);

} // namespace kelvo
