#include "special_pages_context.h"

#include <utility>

namespace kelvo {

_SpecialPagesContext *_specialPagesContext = nullptr;

SpecialPages _SpecialPagesContext::pages() const
{
    return {frontCover ? &*frontCover : nullptr, inserts.get(), exceptions.get(),
            backCover ? &*backCover : nullptr};
}

void SaveUndoState(_SpecialPagesContext *context)
{
    if (!context)
        return;
    context->savedFrontCover = context->frontCover;
    context->savedBackCover = context->backCover;
    context->savedInserts = std::make_unique<InsertList>(*context->inserts);
    context->savedExceptions = std::make_unique<ExceptionPageList>(*context->exceptions);
}

void PerformUndo(_SpecialPagesContext *context)
{
    if (!context || !hasUndoState(*context))
        return;
    context->frontCover = std::exchange(context->savedFrontCover, std::nullopt);
    context->backCover = std::exchange(context->savedBackCover, std::nullopt);
    context->inserts = std::move(context->savedInserts);
    context->exceptions = std::move(context->savedExceptions);
}

void DropUndoState(_SpecialPagesContext *context)
{
    context->savedFrontCover.reset();
    context->savedBackCover.reset();
    context->savedInserts.reset();
    context->savedExceptions.reset();
}

bool hasUndoState(const _SpecialPagesContext &context)
{
    return context.savedFrontCover || context.savedBackCover || context.savedInserts
        || context.savedExceptions;
}

} // namespace kelvo
