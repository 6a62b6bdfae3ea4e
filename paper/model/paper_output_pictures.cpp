#include "paper_output_pictures.h"

#include "keyword_map.h"

namespace kelvo {

namespace {

QString picture(const char *name)
{
    return QString::fromLatin1(name);
}

QString bookletFoldPicture(const PaperOutputSettings &settings)
{
    if (settings.finishing.fold == kFoldBi)
        return picture(settings.isBooklet() ? "OfficeFinishing_Bklt_Fold_Layout.gif"
                                            : "OfficeFinishing_Bklt_Fold.gif");
    return picture(settings.isBooklet() ? "OfficeFinishing_Bklt_Fold&Stpl_Layout.gif"
                                        : "OfficeFinishing_BKlt_Fold&Stple.gif");
}

// "1St", "2St" or "4St"; empty without a staple that has a picture.
QString stapleWord(const Finishing &finishing)
{
    if (finishing.singleStaple == kStapleSingle)
        return QStringLiteral("1St");
    if (finishing.dualStaple == kStapleDual)
        return QStringLiteral("2St");
    return finishing.otherStaple == kStapleMultiple ? QStringLiteral("4St") : QString();
}

// "2Hp", "3Hp" or "4Hp"; empty without holes.
QString holesBesideStaples(std::int32_t punch)
{
    switch (punch) {
    case kPunchGeneric:
    case kPunchThreeHoles:
        return QStringLiteral("3Hp");
    case kPunchTwoHoles:
        return QStringLiteral("2Hp");
    case kPunchFourHoles:
        return QStringLiteral("4Hp");
    default:
        return {};
    }
}

} // namespace

QString jobTypePicture(std::int32_t jobType)
{
    switch (jobType) {
    case kJobTypeNormal:
        return picture("JobType_NormalPrint.gif");
    case kJobTypeHold:
        return picture("JobType_HoldJob.gif");
    case kJobTypeSaved:
        return picture("JobType_SavedJob.gif");
    case kJobTypeFax:
        return picture("JobType_Fax.gif");
    case kJobTypeSecurePrint:
        return picture("JobType_SecurePrint.gif");
    case kJobTypeDelayedPrint:
        return picture("JobType_DelayPrint.gif");
    case kJobTypeSampleSet:
        return picture("JobType_SampleSet.gif");
    case kJobTypeBackgroundForm:
        return picture("JobType_BackgroundForm.gif");
    default:
        return {};
    }
}

QString duplexPicture(const PaperOutputSettings &settings)
{
    if (settings.isBooklet())
        return picture("2SidedPrinting_2Sided.gif");
    switch (settings.duplex) {
    case kPlexSimplex:
        return picture("2SidedPrinting_1Sided.gif");
    case kPlexDuplex:
        return picture("2SidedPrinting_2Sided.gif");
    case kPlexDuplexShort:
        return picture("2SidedPrinting_2SidedFlip.gif");
    default:
        return {};
    }
}

QString staplePicture(const Finishing &finishing)
{
    if (finishing.singleStaple == 5 || finishing.singleStaple == 6)
        return picture("OfficeFinishing_1St.gif");
    if (finishing.dualStaple == 10 || finishing.dualStaple == 12)
        return picture("OfficeFinishing_2St.gif");
    return finishing.otherStaple == kStapleMultiple ? picture("OfficeFinishing_4St.gif")
                                                    : QString();
}

QStringList staplePictures(const Finishing &finishing)
{
    const QString staple = staplePicture(finishing);
    if (staple.isEmpty())
        return {};
    const QString holes = holesBesideStaples(finishing.punch);
    if (holes.isEmpty())
        return {staple};
    const bool isInCorner = finishing.singleStaple != kStapleNone;
    return {staple,
            QStringLiteral("OfficeFinishing_Overlay-%1St-%2.gif")
                .arg(isInCorner ? QStringLiteral("Below") : QStringLiteral("Beside"), holes)};
}

QString punchPicture(std::int32_t punch)
{
    switch (punch) {
    case kPunchGeneric:
    case kPunchThreeHoles:
        return picture("OfficeFinishing_3Hp.gif");
    case kPunchTwoHoles:
        return picture("OfficeFinishing_2Hp.gif");
    case kPunchFourHoles:
        return picture("OfficeFinishing_4Hp.gif");
    default:
        return {};
    }
}

QString colorModePicture(std::int32_t colorMode)
{
    switch (colorMode) {
    case kColorModeColor:
        return picture("OutputColor_Color.gif");
    case kColorModeGrayscale:
        return picture("OutputColor_BlackandWhite.gif");
    default:
        return picture("OutputColor_PrnDef.gif");
    }
}

QString finishingPicture(const PaperOutputSettings &settings)
{
    const Finishing &finishing = settings.finishing;
    switch (finishing.fold) {
    case kFoldNone:
        break;
    case kFoldC:
        return picture("OfficeFinishing_CFold.gif");
    case kFoldZ:
        return picture("OfficeFinishing_ZFold.gif");
    case kFoldZHalfSheet:
        return picture("ProductionFinishing_ZFold_Half_Left.gif");
    case kFoldBi:
    case kFoldBiAndStaple:
        return bookletFoldPicture(settings);
    default:
        return {}; // a fold without a picture decides alone as well
    }
    const QString staple = stapleWord(finishing);
    if (!staple.isEmpty()) {
        const QString holes = holesBesideStaples(finishing.punch);
        return QStringLiteral("OfficeFinishing_%1.gif")
            .arg(holes.isEmpty() ? staple : staple + u'&' + holes);
    }
    switch (finishing.punch) {
    case kPunchNone:
        return picture(settings.isBooklet() ? "OfficeFinishing_Bklt_Layout.gif"
                                            : "OfficeFinishing_None.gif");
    case kPunchGeneric:
    case kPunchTwoHoles:
    case kPunchThreeHoles:
        return picture("OfficeFinishing_3Hp.gif");
    case kPunchFourHoles:
        return picture("OfficeFinishing_4Hp.gif");
    default:
        return picture("OfficeFinishing_None.gif");
    }
}

} // namespace kelvo
