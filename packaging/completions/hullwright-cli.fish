# Completion of hullwright-cli in fish.

function __hullwright_cli_verb
    set -l words (commandline -opc)
    test (count $words) -gt 1; and test $words[2] = $argv[1]
end

function __hullwright_cli_no_verb
    test (count (commandline -opc)) -eq 1
end

complete -c hullwright-cli -f
complete -c hullwright-cli -n __hullwright_cli_no_verb -a check -d 'What saving a design would lose'
complete -c hullwright-cli -n __hullwright_cli_no_verb -a diff -d 'What differs between two designs or drawings'
complete -c hullwright-cli -n __hullwright_cli_no_verb -a export -d 'Write a design for other programs'
complete -c hullwright-cli -n __hullwright_cli_no_verb -a import -d 'Import drawings into a design'
complete -c hullwright-cli -n __hullwright_cli_no_verb -a info -d 'What designs and drawings hold'
complete -c hullwright-cli -n __hullwright_cli_no_verb -a render -d 'Draw sides as pictures'
complete -c hullwright-cli -n __hullwright_cli_no_verb -a report -d 'Make a document of a design'
complete -c hullwright-cli -n __hullwright_cli_no_verb -l version -d 'Show the version'
complete -c hullwright-cli -s h -l help -d 'Show the usage'

complete -c hullwright-cli -n '__hullwright_cli_verb check' -k -a '(__fish_complete_suffix .xml)'

complete -c hullwright-cli -n '__hullwright_cli_verb diff' -F
complete -c hullwright-cli -n '__hullwright_cli_verb diff' -s t -l tolerance -x -d 'The largest difference that does not count'
complete -c hullwright-cli -n '__hullwright_cli_verb diff' -s s -l side -x -a 'top bottom right left front rear' -d 'The side to compare'
complete -c hullwright-cli -n '__hullwright_cli_verb diff' -s j -l json -d 'As JSON, one document'
complete -c hullwright-cli -n '__hullwright_cli_verb diff' -s o -l output -r -F -d 'Draw what differs as well'

complete -c hullwright-cli -n '__hullwright_cli_verb export' -k -a '(__fish_complete_suffix .xml)'
complete -c hullwright-cli -n '__hullwright_cli_verb export' -s s -l side -x -a 'top bottom right left front rear all' -d 'The side to write'
complete -c hullwright-cli -n '__hullwright_cli_verb export' -s f -l format -x -a 'dxf geojson csv svg' -d 'The format in place of the ending'
complete -c hullwright-cli -n '__hullwright_cli_verb export' -s d -l dxf-version -x -a 'R2000 R12' -d 'The version of a drawing'
complete -c hullwright-cli -n '__hullwright_cli_verb export' -s l -l layer-by -x -a 'side kind' -d 'What layers stand for'
complete -c hullwright-cli -n '__hullwright_cli_verb export' -s o -l output -r -F -d 'The file to write'

complete -c hullwright-cli -n '__hullwright_cli_verb import' -k -a '(__fish_complete_suffix .dxf)'
complete -c hullwright-cli -n '__hullwright_cli_verb import' -s i -l into -r -k -a '(__fish_complete_suffix .xml)' -d 'The design to add to'
complete -c hullwright-cli -n '__hullwright_cli_verb import' -s s -l side -x -a 'top bottom right left front rear' -d 'The side to add to'
complete -c hullwright-cli -n '__hullwright_cli_verb import' -s o -l output -r -k -a '(__fish_complete_suffix .xml)' -d 'The design to write'
complete -c hullwright-cli -n '__hullwright_cli_verb import' -s j -l json -d 'Print what each import gives'

complete -c hullwright-cli -n '__hullwright_cli_verb info' -F
complete -c hullwright-cli -n '__hullwright_cli_verb info' -s j -l json -d 'As JSON, one document a line'

complete -c hullwright-cli -n '__hullwright_cli_verb render' -F
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s s -l side -x -a 'top bottom right left front rear all' -d 'The side to draw'
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s z -l size -x -a '800x500 1600x1000 3200x2000' -d 'Size of a picture in pixels'
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s f -l fit -d 'Show everything of the side'
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s v -l view -x -d 'Stretch of the world: left,bottom,right,top'
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s g -l grid -x -a 'on off' -d 'Draw the grid or not'
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s y -l symbols -x -a 'on off' -d 'Draw offsets and anchors or not'
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s c -l sheet -d 'All sides on one sheet'
complete -c hullwright-cli -n '__hullwright_cli_verb render' -s o -l output -r -F -d 'The file to write'

complete -c hullwright-cli -n '__hullwright_cli_verb report' -k -a '(__fish_complete_suffix .xml)'
complete -c hullwright-cli -n '__hullwright_cli_verb report' -s o -l output -r -k -a '(__fish_complete_suffix .pdf)' -d 'The document to write'
