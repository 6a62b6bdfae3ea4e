// The yardstick of a script: a window of 31 labels and 31 pop-ups, as many controls as the dialog
// shows at once, in which one pop-up after the other shows its next line, and the window is
// painted anew: all of it, since on a choice others may hang.
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
    constexpr int popups = 31, rows = 16, lines = 10;
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
