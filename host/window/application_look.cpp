#include "application_look.h"

#include "accessibility.h"
#include "menu_style.h"
#include "outline_style.h"
#include "text_direction.h"
#include "texts.h"

namespace kelvo {

void dressApplication()
{
    installTexts();
    followTextDirection();  // follows the table
    showFocusAndOutlines(); // after all else that sets the style
    keepMenusOnScreen();
    installAccessibility();
}

} // namespace kelvo
