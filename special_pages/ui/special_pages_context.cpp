#include "special_pages_context.h"

namespace kelvo {

namespace {

std::unique_ptr<Cover> copyOf(const std::unique_ptr<Cover> &cover)
{
    return cover ? std::make_unique<Cover>(*cover) : nullptr;
}

} // namespace

_SpecialPagesContext *_specialPagesContext = nullptr;

SpecialPages _SpecialPagesContext::pages() const
{
    return {frontCover.get(), inserts.get(), exceptions.get(), backCover.get()};
}

void SaveUndoState(_SpecialPagesContext *context)
{
    if (!context)
        return;
    context->savedFrontCover = copyOf(context->frontCover);
    context->savedBackCover = copyOf(context->backCover);
    context->savedInserts = std::make_unique<InsertList>(*context->inserts);
    context->savedExceptions = std::make_unique<ExceptionPageList>(*context->exceptions);
}

void PerformUndo(_SpecialPagesContext *context)
{
    if (!context || !hasUndoState(*context))
        return;
    context->frontCover = std::move(context->savedFrontCover);
    context->backCover = std::move(context->savedBackCover);
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
