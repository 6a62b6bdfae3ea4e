#pragma once

#include <QString>

// What the texts of controls say where they are not on a control: in a sentence, in a
// summary, to a screen reader.
namespace kelvo {

// "Save" of "&Save" and "保存" of "保存(&S)", as languages write it whose letters are on no
// key; a doubled "&" is one.
QString withoutMnemonic(const QString &title);

// The same of a label beside a control, without the colon at its end: "Paper" of "&Paper:".
QString nameInLabel(const QString &label);

} // namespace kelvo
