#include "special_pages_context.h"

namespace kelvo {

_SpecialPagesContext *_specialPagesContext = nullptr;

void SaveUndoState(_SpecialPagesContext *context)
{
    if (context)
        context->undo = context->settings;
}

void PerformUndo(_SpecialPagesContext *context)
{
    if (!context || !context->undo)
        return;
    context->undo->jobStock = context->settings.jobStock;
    context->settings = std::move(*context->undo);
    context->undo.reset();
}

} // namespace kelvo
