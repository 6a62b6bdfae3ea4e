#pragma once

#include <cstdint>

// Window descriptions as the build compiles them: tools/window_compiler writes them from the .ui
// files into a bundle's module, window_builder.h makes windows of them. All of it is constant, and
// texts stand once, so that a process maps what it reads and no more.
namespace kelvo {

// A list of steps, in the order in which the description has them. Each is followed by its
// operands, a word each; what is called a text is the place of one in CompiledWindows::texts.
enum class BuildStep : std::int32_t {
    // Begins what all steps are about until its End: a widget in the widget around it, and the next
    // item of the layout around it where there is one. Operands: class, name (texts).
    Widget,
    // The same with the layout of the widget, or one in the layout around it.
    Layout,
    End,
    // An item of the layout around it. Operands: width, height (logical pixels), horizontal and
    // vertical QSizePolicy::Policy.
    Spacer,
    // Of the next item. Operands: row, column, rows, columns (a grid's; from 0), Qt::Alignment.
    Cell,

    // Properties of a widget. The first operand is the name, a text.
    Text,   // text
    Texts,  // how many, so many texts
    Number, // an integer, or an enumeration's value
    Flag,   // 0 or 1
    Size,   // width, height
    Policy, // horizontal and vertical QSizePolicy::Policy, horizontal and vertical stretch
    Font,   // point size, 0 or 1: bold

    // Of the outermost widget. Operands: width, height.
    Resize,
    // Of a layout. Operands: left, top, right, bottom.
    Margins,
    // Of a layout; of a grid, between its columns and between its rows. Operand: logical pixels.
    Spacing,
    HorizontalSpacing,
    VerticalSpacing,
    // Of a layout. Operands: how many, so many numbers; in a box, by row, by column.
    Stretches,
    RowStretches,
    ColumnStretches,
    RowHeights, // at least; logical pixels
    ColumnWidths,

    // After the End of the outermost widget; widgets are numbered as they begin, from 0.
    TabOrder, // how many, so many widgets
    Buddy,    // label, widget
    Done,
};

struct CompiledWindow
{
    std::int32_t name;         // text: "PaperOutputPanel/PaperOutput"
    std::int32_t start;        // in CompiledWindows::steps
    std::uint8_t fileHash[16]; // MD5 of the .ui file
};

struct CompiledWindows
{
    const CompiledWindow *windows;
    std::int32_t count;
    const std::int32_t *steps;
    const char *texts; // UTF-8, each with a zero behind it
};

// The function of a bundle's module that has them; null where `version` is not its own.
inline constexpr char compiledWindowsEntry[] = "KelvoCompiledWindows";
using CompiledWindowsFunction = const CompiledWindows *(*)(const char *version);

} // namespace kelvo
