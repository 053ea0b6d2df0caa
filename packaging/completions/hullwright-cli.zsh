#compdef hullwright-cli

_hullwright-cli() {
  local context state line
  typeset -A opt_args
  local sides='(top bottom right left front rear)'

  _arguments -C \
    '(- *)'{-h,--help}'[show the usage]' \
    '(- *)--version[show the version]' \
    '1:verb:((check\:"what saving a design would lose, and wrong numbers and units"
              diff\:"what differs between two designs or drawings"
              export\:"write a design as a drawing, GeoJSON, a table or a picture"
              import\:"import drawings into a design"
              info\:"what designs and drawings hold"
              render\:"draw sides of a design or drawing as pictures"
              report\:"make a document of a design"))' \
    '*::argument:->argument' && return

  case $line[1] in
    check)
      _arguments \
        '(- *)'{-h,--help}'[show the usage]' \
        '*:design:_files -g "*.xml(-.)"'
      ;;
    diff)
      _arguments \
        '(- *)'{-h,--help}'[show the usage]' \
        '(-t --tolerance)'{-t+,--tolerance=}'[the largest difference that does not count]:length: ' \
        '(-s --side)'{-s+,--side=}"[the side to compare]:side:$sides" \
        '(-j --json)'{-j,--json}'[as JSON, one document]' \
        '(-o --output)'{-o+,--output=}'[draw what differs as well]:picture:_files -g "*.(#i)(png|svg|pdf)(-.)"' \
        '1:former design or drawing:_files -g "*.(#i)(xml|dxf)(-.)"' \
        '2:new design or drawing:_files -g "*.(#i)(xml|dxf)(-.)"'
      ;;
    export)
      _arguments \
        '(- *)'{-h,--help}'[show the usage]' \
        '(-s --side)'{-s+,--side=}'[the side to write]:side:(top bottom right left front rear all)' \
        '(-f --format)'{-f+,--format=}'[the format in place of the ending]:format:(dxf geojson csv svg)' \
        '(-d --dxf-version)'{-d+,--dxf-version=}'[the version of a drawing]:version:(R2000 R12)' \
        '(-l --layer-by)'{-l+,--layer-by=}'[what layers stand for]:layers:(side kind)' \
        '(-o --output)'{-o+,--output=}'[the file to write]:file:_files -g "*.(#i)(dxf|geojson|csv|svg)(-.)"' \
        '1:design:_files -g "*.xml(-.)"'
      ;;
    import)
      _arguments \
        '(- *)'{-h,--help}'[show the usage]' \
        '(-i --into)'{-i+,--into=}'[the design to add to]:design:_files -g "*.xml(-.)"' \
        '(-s --side)'{-s+,--side=}"[the side to add to]:side:$sides" \
        '(-o --output)'{-o+,--output=}'[the design to write]:design:_files -g "*.xml(-.)"' \
        '(-j --json)'{-j,--json}'[print what each import gives]' \
        '*:drawing:_files -g "*.(#i)dxf(-.)"'
      ;;
    info)
      _arguments \
        '(- *)'{-h,--help}'[show the usage]' \
        '(-j --json)'{-j,--json}'[as JSON, one document a line]' \
        '*:design or drawing:_files -g "*.(#i)(xml|dxf)(-.)"'
      ;;
    render)
      _arguments \
        '(- *)'{-h,--help}'[show the usage]' \
        '(-s --side)'{-s+,--side=}'[the side to draw]:side:(top bottom right left front rear all)' \
        '(-z --size)'{-z+,--size=}'[size of a picture in pixels]:width x height:(800x500 1600x1000 3200x2000)' \
        '(-f --fit -v --view)'{-f,--fit}'[show everything of the side]' \
        '(-v --view -f --fit)'{-v+,--view=}'[stretch of the world]:left,bottom,right,top: ' \
        '(-g --grid)'{-g+,--grid=}'[draw the grid or not]:grid:(on off)' \
        '(-y --symbols)'{-y+,--symbols=}'[draw offsets and anchors or not]:symbols:(on off)' \
        '(-c --sheet)'{-c,--sheet}'[all sides on one sheet]' \
        '(-o --output)'{-o+,--output=}'[the file to write]:picture:_files -g "*.(#i)(png|svg|pdf)(-.)"' \
        '1:design or drawing:_files -g "*.(#i)(xml|dxf)(-.)"'
      ;;
    report)
      _arguments \
        '(- *)'{-h,--help}'[show the usage]' \
        '(-o --output)'{-o+,--output=}'[the document to write]:document:_files -g "*.(#i)pdf(-.)"' \
        '1:design:_files -g "*.xml(-.)"'
      ;;
  esac
}

_hullwright-cli "$@"
