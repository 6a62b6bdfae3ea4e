#pragma once

// Who looks at the windows of this process.
namespace kelvo {

enum class Audience {
    People,
    // A script: every control is there, and stands where people would see it. Windows are painted
    // into the pictures that are asked for (QWidget::grab()) and nowhere else.
    Script,
    // Settings go from a ticket to the printer: what is not shown yet need not be built.
    Nobody,
};

// Before there are windows. People until then.
void setAudience(Audience audience);
Audience audience();

} // namespace kelvo
