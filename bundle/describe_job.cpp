#include "describe_job.h"

#include "advanced_description.h"
#include "booklet_watermark_description.h"
#include "image_options_description.h"
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

} // namespace kelvo
