#pragma once

#include "compiled_windows.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <initializer_list>

namespace kelvo {

// The table of a bundle's compiled windows as it grows, and the C++ source that it becomes.
class WindowCode
{
public:
    // Begins a window: "PaperOutputPanel/PaperOutput", and the .ui file's bytes.
    void begin(const QString &name, const QByteArray &file);
    void add(BuildStep step, std::initializer_list<std::int32_t> operands = {});
    void add(BuildStep step, const QString &property, const QList<std::int32_t> &operands);
    // How many, and the numbers.
    void addList(BuildStep step, const QList<std::int32_t> &numbers);
    // The place of `text`.
    std::int32_t text(const QString &text);

    // Defines the function compiledWindowsEntry.
    QByteArray source() const;

private:
    struct Window
    {
        QString name;
        std::int32_t nameText;
        QByteArray fileHash;
        qsizetype start;
    };
    QList<Window> m_windows;
    QList<std::int32_t> m_steps;
    QList<QByteArray> m_texts;
    QHash<QString, std::int32_t> m_placeOf; // of each text
    std::int32_t m_textsEnd = 0;
};

} // namespace kelvo
