# Runs the build's two checks of catalogs as the build runs them: the catalog
# generator writes key constants for a sound catalog and refuses a faulty one
# with the file and line, and msgfmt -c, whose warnings count, refuses a file
# whose header translators' tools would not take. CatalogChecksTest holds the
# cases of each check.
#
#   cmake -DLOCGEN=<generator> -DMSGFMT=<msgfmt> -DMSGFMT_CHECK=<script>
#         -DWORK_DIR=<scratch directory> -P CatalogGeneratorCheck.cmake
set(tools_header "\"Project-Id-Version: t\\n\"\n\"PO-Revision-Date: 2026-11-23 04:30+0000\\n\"\n\"Last-Translator: t\\n\"\n\"Language-Team: t\\n\"\n")
set(mime "\"MIME-Version: 1.0\\n\"\n\"Content-Transfer-Encoding: 8bit\\n\"\n")
set(content_type "\"Content-Type: text/plain; charset=UTF-8\\n\"\n\"Plural-Forms: nplurals=2; plural=(n != 1);\\n\"\n")
set(english "msgid \"\"\nmsgstr \"\"\n${tools_header}\"Language: en\\n\"\n${mime}${content_type}\nmsgid \"t_add\"\nmsgstr \"&Add\"\n")
set(german_header "msgid \"\"\nmsgstr \"\"\n${tools_header}\"Language: de_DE\\n\"\n${content_type}")
set(german "${german_header}${mime}\n#. &Add\nmsgid \"t_add\"\nmsgstr \"&Hinzufügen\"\n")
set(faulty "${german_header}${mime}\n#. &Add\nmsgid \"t_add\"\nmsgstr \"Hinzufügen\"\n")
set(no_mime "${german_header}\n#. &Add\nmsgid \"t_add\"\nmsgstr \"&Hinzufügen\"\n")

set(failures "")
function(run_case name german_text)
  set(dir ${WORK_DIR}/${name})
  file(REMOVE_RECURSE ${dir})
  file(WRITE ${dir}/en.po "${english}")
  file(WRITE ${dir}/de.po "${german_text}")
  execute_process(COMMAND ${LOCGEN} --catalog t --keys ${dir}/TextKeys.h ${dir}/en.po ${dir}/de.po
                  RESULT_VARIABLE code ERROR_VARIABLE err)
  execute_process(COMMAND ${CMAKE_COMMAND} -DMSGFMT=${MSGFMT} -P ${MSGFMT_CHECK} ${dir}/en.po
                          ${dir}/de.po
                  RESULT_VARIABLE msgfmt_code ERROR_VARIABLE msgfmt_err)
  set(code ${code} PARENT_SCOPE)
  set(err "${err}" PARENT_SCOPE)
  set(msgfmt_code ${msgfmt_code} PARENT_SCOPE)
  set(msgfmt_err "${msgfmt_err}" PARENT_SCOPE)
  set(dir ${dir} PARENT_SCOPE)
endfunction()

run_case(sound "${german}")
file(READ ${dir}/TextKeys.h keys)
if(NOT code EQUAL 0 OR NOT msgfmt_code EQUAL 0 OR
   NOT keys MATCHES "inline constexpr char t_add\\[\\] = \"t_add\";")
  string(APPEND failures "refused a sound catalog: ${err}${msgfmt_err}\n")
endif()

run_case(faulty "${faulty}")
if(code EQUAL 0 OR NOT err MATCHES "de.po:14: t_add does not keep the '&' marks of English")
  string(APPEND failures "took a lost mark (${code}): ${err}\n")
endif()

run_case(no_mime "${no_mime}")
if(msgfmt_code EQUAL 0 OR NOT msgfmt_err MATCHES "MIME-Version")
  string(APPEND failures "msgfmt check took a header without MIME-Version: ${msgfmt_err}\n")
endif()

if(failures)
  message(FATAL_ERROR "${failures}")
endif()
