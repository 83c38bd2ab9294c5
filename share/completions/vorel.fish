# Completes vorel(1) in fish.
complete -c vorel -f
complete -c vorel -s h -l help -d 'Show the options'
complete -c vorel -n __fish_use_subcommand -l version -d 'Show the version'
complete -c vorel -n __fish_use_subcommand -a run -d 'Run bots without a window'
complete -c vorel -n __fish_use_subcommand -a try -d 'Rehearse a bot with a written session'
complete -c vorel -n __fish_use_subcommand -a practice -d 'Open the practice dream'

set -l run '__fish_seen_subcommand_from run'
complete -c vorel -n $run -ka '(__fish_complete_suffix .tvm)'
complete -c vorel -n $run -l practice -d 'Open the practice dream and connect there'
complete -c vorel -n $run -l tour -rF -d 'The tour that visitors play'
complete -c vorel -n $run -l server -xa '(__fish_print_hostnames)' -d 'Connect to this host'
complete -c vorel -n $run -l port -x -d 'Connect to this port'
complete -c vorel -n $run -l log -rF -d 'Append the console to this file'
complete -c vorel -n $run -l record -rF -d 'Write a session for vorel try'
complete -c vorel -n $run -l keep-split-lines -d 'Keep lines cut by the end of a packet'
complete -c vorel -n $run -l brake -x -d 'How many lines a second a script may send'
complete -c vorel -n $run -l stay -d 'Connect again when the connection is lost'
complete -c vorel -n $run -l quiet -d 'Show no console lines'
complete -c vorel -n $run -l folder -xa '(__fish_complete_directories)' -d 'Where data files are'

set -l try '__fish_seen_subcommand_from try'
set -l profile_given 'string match -q "*.tvm" -- (commandline -opc)'
complete -c vorel -n "$try; and not $profile_given" -ka '(__fish_complete_suffix .tvm)'
complete -c vorel -n "$try; and $profile_given" -ka '(__fish_complete_suffix .txt)'
complete -c vorel -n $try -l now -x -d 'Freeze the clock at "YYYY-MM-DD HH:MM:SS"'
complete -c vorel -n $try -l seed -x -d 'Fix the random draw'
complete -c vorel -n $try -l folder -xa '(__fish_complete_directories)' -d 'Where data files are'

set -l practice '__fish_seen_subcommand_from practice'
complete -c vorel -n $practice -l port -x -d 'The port to listen on'
complete -c vorel -n $practice -l tour -rF -d 'The visitors that come and what they do'
complete -c vorel -n $practice -l name -x -d "Your own furre's name"
