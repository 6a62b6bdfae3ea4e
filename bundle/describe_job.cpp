#include "describe_job.h"

#include "advanced_description.h"
#include "booklet_watermark_description.h"
#include "image_options_description.h"
#include "installed_features.h"
#include "job_notes_description.h"
#include "keyword_map.h"
#include "paper_output_description.h"
#include "special_pages_description.h"

namespace kelvo {

namespace {

// What the shell writes for accounting and for the device; no panel sets it.
constexpr const char *housekeeping[] = {
    "ClientInformation.UserName",
    "ClientInformation.ComputerName",
    "ClientInformation.IPAddress",
    "ControllerInformation.ControllerFamily",
    "ControllerInformation.ControllerVersion",
    "KPIFOptions",
};

void describe(const DescribedJob &job, JobDescription &description)
{
    describePaperOutput(job, description);
    describeSpecialPages(job, description);
    describeImageOptions(job, description);
    describeBookletWatermark(job, description);
    describeJobNotes(job, description);
    describeAdvanced(job, description);
    PanelDescription shell(job, "PDEShell", description);
    for (const char *name : housekeeping)
        shell.leaveUnspoken(name);
}

} // namespace

OSStatus KelvoDescribeJob(const JobToDescribe *job, JobDescription *description)
{
    if (!job || !job->printSettings || !job->pageFormat || !description)
        return paramErr;
    // What can be read anew only when it changes stays; all else is said anew.
    description->settings.clear();
    description->unspoken.clear();
    description->imposition.reset();
    description->overlays.clear();
    description->leadingPage.reset();
    description->files.clear();
    describe({*job->printSettings, *job->pageFormat, deviceWith(job->bundle, job->ppd)},
             *description);
    return noErr;
}

bool KelvoKnowsOption(const QString &keyword)
{
    const auto isIt = [&keyword](const char *known) {
        return known && keyword.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
    };
    for (const PpdKeywordMap *row = MainKeywordMap; row->keyword; ++row) {
        if (isIt(row->keyword))
            return true;
    }
    for (const InstalledFeature *row = InstalledFeatures; row->feature; ++row) {
        if (isIt(row->ppdKeyword))
            return true;
    }
    return false;
}

} // namespace kelvo
