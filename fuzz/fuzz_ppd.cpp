#include "ppd_file.h"

#include <cstdlib>

using namespace kelvo;

// Any bytes end in a device or an Error. Of a device everything is asked, each
// choice up to a limit is marked and conflicts are looked for; what resolves them does.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto opened = PpdFile::fromBytes(bytes, QStringLiteral("ppd"));
    if (!opened)
        return 0;
    PpdFile &ppd = *opened.value();
    ppd.manufacturer();
    ppd.modelName();
    ppd.languageEncoding();
    ppd.attributes("cupsFilter");
    ppd.customPageLimits();
    for (const PpdPageSize &pageSize : ppd.pageSizes()) {
        if (!ppd.findPageSize(pageSize.name))
            std::abort();
    }
    ppd.mark(QStringLiteral("PageSize"), QStringLiteral("Custom.400x500"));
    PpdSelection last;
    int marks = 64; // each looks at every rule; more of them find nothing new
    for (const PpdGroup &group : ppd.groups()) {
        for (const PpdOption &option : group.options) {
            ppd.findOption(option.keyword);
            for (const PpdChoice &choice : option.choices) {
                if (marks-- > 0)
                    ppd.mark(option.keyword, choice.keyword);
                last.insert(option.keyword, choice.keyword);
            }
            ppd.markedChoice(option.keyword);
        }
    }
    const bool clash = !ppd.conflicts(last).empty();
    const auto changes = ppd.resolve(last);
    if (!clash && !(changes && changes->isEmpty()))
        std::abort();
    return 0;
}
