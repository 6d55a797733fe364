complete -c tarnloft -f
complete -c tarnloft -n 'not string match -qr -- "^-" (commandline -opc)[2]' -a '(__fish_complete_suffix .tarnloft.zip)'
complete -c tarnloft -n __fish_is_first_arg -l export-page -d 'Publish a brand as a web page'
complete -c tarnloft -n __fish_is_first_arg -l seed-logo -d 'Turn the images of a package into a logo set'
complete -c tarnloft -n __fish_is_first_arg -l selftest -d 'Check the installation'
complete -c tarnloft -n __fish_is_first_arg -l quick-grab -d 'Open the quick grab panel'
complete -c tarnloft -n __fish_is_first_arg -l new-brand -d 'Begin a new brand'
complete -c tarnloft -n __fish_is_first_arg -l preferences -d 'Open the settings'
complete -c tarnloft -n 'string match -qr -- "^--(export-page|seed-logo)\$" (commandline -opc)[2]' -F
