#pragma once

#include "four_char_code.h"
#include "status.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

class QUuid;
class QWidget;

// What host and module agree on: a C factory found by name, function tables
// and opaque handles. Both sides are built with the same Qt. Nothing is thrown
// across, and every call comes on the GUI thread.
namespace kelvo {

class PrintSession;
using PMPrintSession = PrintSession *;
using PMTicketRef = std::uint32_t; // 0 for none; see print_session.h

struct OpaquePDEContext;
using PMPDEContext = OpaquePDEContext *; // a panel's context, known to the panel alone
using PMPDERef = void *;                 // the dialog's own mark, handed back unread
using PMUserPane = QWidget *;            // where a panel puts its controls

// Lives as long as the context that handed it out.
using CFStringRef = const QString *;

enum SyncDirection : std::int32_t {
    kSyncWrite = 0, // panel to ticket
    kSyncRead = 1,  // ticket to panel
};

struct PMPlugInAPIVersion
{
    std::uint32_t buildMajor, buildMinor, baseMajor, baseMinor;
};

// The lines of a summary; none until a panel creates them.
using SummaryArray = std::optional<QStringList>;

struct PanelInterface;

// The ten operations, in slot order. A panel's own getter leaves the first
// three null: whoever loads it copies slots 4 to 10.
struct PanelOperations
{
    OSStatus (*Retain)(PanelInterface *interface);
    OSStatus (*Release)(PanelInterface **interface); // clears the caller's pointer
    OSStatus (*GetAPIVersion)(PanelInterface *interface, PMPlugInAPIVersion *version);
    OSStatus (*Prologue)(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                         CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV);
    OSStatus (*Initialize)(PMPDEContext context, std::uint32_t *flags, PMPDERef ref,
                           PMUserPane parentUserPane, PMPrintSession session);
    OSStatus (*Sync)(PMPDEContext context, PMPrintSession session, std::int32_t direction);
    OSStatus (*GetSummaryText)(PMPDEContext context, SummaryArray *titles, SummaryArray *texts);
    OSStatus (*Open)(PMPDEContext context);
    OSStatus (*Close)(PMPDEContext context);
    OSStatus (*Terminate)(PMPDEContext context, OSStatus status);
};

// Made by whoever hands it out with new for the object and new for the table;
// freed by the Release that brings the count to 0, or, for a getter's interface
// without Release, by the loader after it has copied the slots.
struct PanelInterface
{
    PanelOperations *table;
    std::uint32_t referenceCount; // starts at 1
};

// A factory's instance begins with a pointer to this table.
struct IUnknownTable
{
    void *reserved; // null
    OSStatus (*QueryInterface)(void *self, const QUuid &iid, void **out);
    std::uint32_t (*AddRef)(void *self);
    std::uint32_t (*Release)(void *self);
};

struct PlugInInstance
{
    IUnknownTable *table;
};

// extern "C", exported under the name in the bundle's Info.plist. Null unless
// `typeUUID` is the plug-in type.
using PlugInFactoryFunction = PlugInInstance *(*)(void *allocator, const QUuid &typeUUID);
// extern "C", exported as Get<Panel>PanelInterface. Stores a fresh interface.
using PanelInterfaceGetter = OSStatus (*)(PanelInterface **interface);

// The platform's identifiers.
inline constexpr char kPDEPlugInTypeUUID[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";
inline constexpr char kPDEInterfaceUUID[] = "A996FD7E-B738-11D3-8519-0050E4603277";
inline constexpr char kIUnknownUUID[] = "00000000-0000-0000-C000-000000000046";

} // namespace kelvo

// What the module lets others find by name.
#define KELVO_PLUGIN_EXPORT extern "C" __attribute__((visibility("default")))
