# Runs the catalog generator on small catalogs, one fault each, and checks that
# it refuses each with its message, and that a sound catalog gives key constants.
#
#   cmake -DLOCGEN=<generator> -DWORK_DIR=<scratch directory> -P CatalogGeneratorCheck.cmake
set(english "msgid \"t_add\"\nmsgstr \"&Add %1$S to %2$S\"\n\nmsgid \"t_plain\"\nmsgstr \"Plain\"\n")
string(ASCII 255 bad_byte)

# Each case: a German file, then the message the generator must give.
set(cases
  "msgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\"\n\nmsgid \"t_plain\"\nmsgstr \"Einfach\"\n"
  "OK"
  "msgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\"\n"
  "has no text for t_plain"
  "msgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\"\n\nmsgid \"t_plain\"\nmsgstr \"Einfach\"\n\nmsgid \"t_extra\"\nmsgstr \"Mehr\"\n"
  "t_extra is not in the English catalog"
  "msgid \"t_add\"\nmsgstr \"%S zu %2$S &hinzufügen\"\n\nmsgid \"t_plain\"\nmsgstr \"Einfach\"\n"
  "t_add does not keep the placeholders of English"
  "msgid \"t_add\"\nmsgstr \"%1$S zu %2$S hinzufügen\"\n\nmsgid \"t_plain\"\nmsgstr \"Einfach\"\n"
  "t_add does not keep the '&' marks of English"
  "#. Older text\nmsgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\"\n\nmsgid \"t_plain\"\nmsgstr \"Einfach\"\n"
  "t_add was translated from an older English text"
  "msgid \"t_add\"\nmsgid \"t_plain\"\nmsgstr \"Einfach\"\n"
  "de.po:2: Expected msgstr"
  "msgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\"\n\nmsgid \"t_plain\"\nmsgstr \"Ein${bad_byte}fach\"\n"
  "Bad UTF-8 in t_plain"
  "msgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\\q\"\n\nmsgid \"t_plain\"\nmsgstr \"Einfach\"\n"
  "de.po:2: Invalid escape code")

set(failures "")
list(LENGTH cases count)
math(EXPR last "${count} - 1")
foreach(index RANGE 0 ${last} 2)
  math(EXPR message_index "${index} + 1")
  list(GET cases ${index} german)
  list(GET cases ${message_index} expected)
  set(dir ${WORK_DIR}/case${index})
  file(REMOVE_RECURSE ${dir})
  file(WRITE ${dir}/en.po "${english}")
  file(WRITE ${dir}/de.po "${german}")
  execute_process(COMMAND ${LOCGEN} --catalog t --keys ${dir}/TextKeys.h ${dir}/en.po ${dir}/de.po
                  RESULT_VARIABLE code ERROR_VARIABLE err)
  if(expected STREQUAL "OK")
    file(READ ${dir}/TextKeys.h header)
    if(NOT code EQUAL 0 OR NOT header MATCHES "inline constexpr char t_add\\[\\] = \"t_add\";")
      string(APPEND failures "case ${index}: refused a sound catalog (${code}): ${err}\n")
    endif()
  elseif(code EQUAL 0 OR NOT err MATCHES "${expected}")
    string(APPEND failures "case ${index}: expected '${expected}', got ${code}: ${err}\n")
  endif()
endforeach()
if(failures)
  message(FATAL_ERROR "${failures}")
endif()
