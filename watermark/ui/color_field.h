#pragma once

#include <QColor>

#include <functional>

class QLineEdit;
class QPushButton;

namespace kelvo {

// A color as two controls: a button that shows it and opens the color dialog, and a field with
// its red, green and blue as "#0000FF". What the user picks is opaque.
class ColorField
{
public:
    // `chosen` comes when the user has picked another color. Both controls outlive this.
    ColorField(QPushButton *well, QLineEdit *field, std::function<void(const QColor &)> chosen);

    // What the user has begun to type stays while the color does.
    void show(const QColor &color);
    // Opens the color dialog, with the well's accessible name as title.
    void choose();
    // Takes what stands in the field, where that is a color.
    void takeTyped();
    bool isColor() const; // what stands in the field
    void focus();         // on the field, to be typed anew

private:
    void paintWell();

    QPushButton *m_well;
    QLineEdit *m_field;
    std::function<void(const QColor &)> m_chosen;
    QColor m_color;
};

} // namespace kelvo
