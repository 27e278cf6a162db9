# Completion of ravelo(1) for fish.
function __ravelo_after
    set -l words (commandline -opc)
    test "$words[2..-1]" = "$argv"
end

function __ravelo_takes_files
    set -l words (commandline -opc)
    not string match -qr '^(timer|shelf|erase|pause|resume|ignore-next|--[a-z])' -- "$words[2]"
end

complete -c ravelo -f
complete -c ravelo -n __ravelo_takes_files -F
complete -c ravelo -n __ravelo_after -a timer -d 'The focus timer'
complete -c ravelo -n __ravelo_after -a shelf -d 'The parked files'
complete -c ravelo -n __ravelo_after -a export -d 'Write everything into an archive'
complete -c ravelo -n __ravelo_after -a import -d 'Add everything in an archive'
complete -c ravelo -n __ravelo_after -a erase -d 'Remove everything for good'
complete -c ravelo -n '__ravelo_after erase' -l yes -d 'Without asking'
complete -c ravelo -n __ravelo_after -a pause -d 'Capture no copies for a while'
complete -c ravelo -n __ravelo_after -a resume -d 'Capture copies again'
complete -c ravelo -n __ravelo_after -a ignore-next -d 'Do not capture the next copy'
complete -c ravelo -n __ravelo_after -l toggle -d 'Open the panel, or close it'
complete -c ravelo -n __ravelo_after -l settings -d 'Show the settings'
complete -c ravelo -n __ravelo_after -l updates -d 'Check for a newer version'
complete -c ravelo -n __ravelo_after -l setup -d 'Show the setup'
complete -c ravelo -n __ravelo_after -l status -d 'Print what the monitors know'
complete -c ravelo -n __ravelo_after -a '--status=json' -d 'The same as one object'
complete -c ravelo -n __ravelo_after -a '--status=waybar' -d 'For waybar'
complete -c ravelo -n __ravelo_after -a '--status=tmux' -d 'For tmux, in its colours'
complete -c ravelo -n __ravelo_after -l store-usage -d 'Store what Claude Code reports'
complete -c ravelo -n '__ravelo_after --store-usage' -l print -d 'Also print it in one line'
complete -c ravelo -n __ravelo_after -l take-over -d 'Start even if another machine seems to use the data'
complete -c ravelo -n __ravelo_after -l quit -d 'End the running Ravelo'
complete -c ravelo -n __ravelo_after -s h -l help -d 'Show a short help'
complete -c ravelo -n __ravelo_after -s v -l version -d 'Show the version'
complete -c ravelo -n '__ravelo_after --version' -l verbose -d 'Also which display server, and why'
complete -c ravelo -n '__ravelo_after timer' -a 'start stop status'
complete -c ravelo -n '__ravelo_after timer status' -l json -d 'As one object'
complete -c ravelo -n '__ravelo_after shelf' -a list -d 'Print the paths'
complete -c ravelo -n '__ravelo_after shelf list' -s 0 -l null -d 'Each ends with a NUL byte'
complete -c ravelo -n '__ravelo_after shelf list' -l json -d 'As one object'
complete -c ravelo -n '__ravelo_after pause' -a '15 60' -d 'Minutes'
complete -c ravelo -n '__ravelo_after pause' -l status -d 'Print whether it is paused'
complete -c ravelo -n '__ravelo_after pause --status' -l json -d 'As one object'
