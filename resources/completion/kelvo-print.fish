# Completion of kelvo-print for fish.

function __kelvo_print_queues
    # Two seconds: nobody waits longer for a server that does not answer.
    kelvo-print --list-printers --timeout 2 2>/dev/null | string replace -r '\t.*' ''
end

function __kelvo_print_presets
    set -l folders $HOME/.config /etc/xdg
    set -q XDG_CONFIG_HOME; and set folders[1] $XDG_CONFIG_HOME
    set -q XDG_CONFIG_DIRS; and set folders $folders[1] (string split : $XDG_CONFIG_DIRS)
    for file in $folders/kelvo/presets/*.plist
        string replace -r '.*/(.*)\.plist$' '$1' $file
    end
end

complete -c kelvo-print -s d -x -a '(__kelvo_print_queues)' -d 'Print to this queue'
complete -c kelvo-print -s n -x -d 'Print this many copies'
complete -c kelvo-print -s o -x -a 'media= sides= orientation-requested= landscape portrait copies= collate= multiple-document-handling= page-ranges= job-priority= job-hold-until=' -d 'Set an option of the device'
complete -c kelvo-print -s P -x -d 'Print only these pages'
complete -c kelvo-print -s q -x -d 'How urgent the job is'
complete -c kelvo-print -s H -x -a 'immediate hold day-time evening night second-shift third-shift weekend' -d 'When the server prints it'
complete -c kelvo-print -s t -x -d 'Call the job so'
complete -c kelvo-print -l join -d 'Print several files as one job'
complete -c kelvo-print -l ppd -r -d 'Show a device without a queue'
complete -c kelvo-print -l demo -d 'Show the sample device and document'
complete -c kelvo-print -l preset -x -a '(__kelvo_print_presets)' -d 'Begin with this preset'
complete -c kelvo-print -l preset-out -r -d 'Write what was set as a preset'
complete -c kelvo-print -l ticket-in -r -d 'Begin with the settings in this ticket'
complete -c kelvo-print -l ticket-out -r -d 'Write all settings'
complete -c kelvo-print -l script -r -d 'Drive the dialog'
complete -c kelvo-print -l print -d 'Print when the script has ended'
complete -c kelvo-print -l secret -x -d 'A secret for the script, or the password DOCUMENT of a PDF: NAME=FILE'
complete -c kelvo-print -l no-window -d 'Show nothing'
complete -c kelvo-print -l to -x -a '(__fish_complete_directories)' -d 'Write the job there instead of sending'
complete -c kelvo-print -l wait -d 'End when the job is printed'
complete -c kelvo-print -l timeout -x -d 'Wait this long for the print server'
complete -c kelvo-print -l language -x -a 'ar de en ja' -d 'Speak this language instead of the desktop\'s'
complete -c kelvo-print -l list-printers -d 'List the queues and end'
complete -c kelvo-print -l list-controls -d 'List what scripts can reach, and end'
complete -c kelvo-print -l version -d 'Print the version and end'
complete -c kelvo-print -l help-scripts -d 'List the commands of scripts and end'
complete -c kelvo-print -s h -l help -d 'List the options and end'
