#pragma once

#include "device.h"
#include "exception_page_list.h"
#include "plugin_abi.h"
#include "setting_map.h"
#include "status.h"

class QWidget;

namespace kelvo {

// As RunModalInsertsDialog, for ranges of exception pages. `ticket` says how the
// job is printed where the exception says nothing; without it the printer's
// defaults do.
OSStatus RunModalExceptionsDialog(const Device &device, DialogMode mode, const Stock *jobStock,
                                  PMTicketRef ticket, ExceptionPageList *exceptions,
                                  const ExceptionPage *edited, DialogResult *outcome,
                                  QWidget *parent = nullptr);
// On the current device.
inline OSStatus RunModalExceptionsDialog(CFBundleRef bundle, DialogMode mode, const Stock *jobStock,
                                         PMTicketRef ticket, ExceptionPageList *exceptions,
                                         const ExceptionPage *edited, DialogResult *outcome)
{
    return RunModalExceptionsDialog(currentDevice(bundle), mode, jobStock, ticket, exceptions,
                                    edited, outcome);
}

} // namespace kelvo
