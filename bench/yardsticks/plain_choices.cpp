// The yardstick of a script: a window with as many widgets as the dialog has, in which one pop-up
// after the other shows its next line, and the window all of what it shows, as after a choice
// on which others may hang.
//
//   plain_choices COUNT
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>

#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    constexpr int popups = 75, rows = 25, lines = 10;
    QApplication application(argc, argv);
    QDialog dialog;
    QGridLayout layout(&dialog);
    std::vector<QComboBox *> all;
    for (int i = 0; i < popups; ++i) {
        auto *label = new QLabel(u"Setting %1:"_s.arg(i));
        auto *popup = new QComboBox;
        for (int line = 0; line < lines; ++line)
            popup->addItem(u"Choice %1 of it"_s.arg(line));
        layout.addWidget(label, i % rows, i / rows * 2);
        layout.addWidget(popup, i % rows, i / rows * 2 + 1);
        all.push_back(popup);
    }
    dialog.show();
    const int choices = argc > 1 ? std::atoi(argv[1]) : 0;
    for (int choice = 0; choice < choices; ++choice) {
        QComboBox *popup = all[static_cast<std::size_t>(choice % popups)];
        popup->setCurrentIndex((popup->currentIndex() + 1) % lines);
        dialog.update();
        QApplication::processEvents();
    }
    return choices > 0 ? 0 : 2;
}
