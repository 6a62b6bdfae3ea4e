#pragma once

#include "window_code.h"

#include <QHash>
#include <QStringList>
#include <QXmlStreamReader>

namespace kelvo {

// Reads one .ui file and adds its window's steps to `code`. It knows what our descriptions hold and
// refuses all else, so that nothing of a description is lost.
class DescriptionReader
{
public:
    DescriptionReader(const QByteArray &file, WindowCode &code);

    // Null: done. Else what is wrong and what to do, "LINE: ...".
    QString read();

private:
    void readWidget();
    void readLayout();
    void readItem(bool isInGrid);
    void readSpacer();
    void readProperty(const QString &className, bool isOutermost);
    void readLayoutProperty(bool isGrid, QHash<QString, std::int32_t> &margins);
    void readValue(const QString &property);
    void readTabStops();

    // What stands in the element that was begun, up to its end.
    std::int32_t readNumber();
    std::int32_t readKeys();
    QString readText();
    QHash<QString, std::int32_t> readNumbers(const QStringList &names);

    QString attribute(QLatin1String name) const;
    // Refuses others than these.
    void expectAttributes(const QStringList &names);
    QList<std::int32_t> numbersIn(const QString &list);
    std::int32_t valueOf(const QString &keys, const QString &scope = {});
    void refuseElement();
    void refuse(const QString &sentence);

    QXmlStreamReader m_xml;
    WindowCode &m_code;
    QHash<QString, std::int32_t> m_numberOf; // of each widget, by name
    std::int32_t m_widgets = 0;
    QList<std::pair<std::int32_t, QString>> m_buddies; // label → name
};

} // namespace kelvo
