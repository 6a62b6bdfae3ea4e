#pragma once

#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <initializer_list>
#include <string>

// Numbers as PDFs have them: with six decimals, which is finer than any device on the largest page,
// also for factors. libqpdf writes the same, by streams, in ten times as long: for a long document
// on new pages that was a sixth of all work.
namespace kelvo::documents {

std::string numberText(double number);

QPDFObjectHandle newNumber(double number);
QPDFObjectHandle newNumbers(std::initializer_list<double> numbers);
QPDFObjectHandle newMatrix(const QPDFMatrix &matrix);
QPDFObjectHandle newRectangle(const QPDFObjectHandle::Rectangle &rectangle);

} // namespace kelvo::documents
