# cmake -DCMARK=.. -DPAGE=x.md -DHTML=x.html -P page.cmake: one page. The first heading is the title of the document.
execute_process(COMMAND ${CMARK} --unsafe --validate-utf8 ${PAGE} OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
# Qt draws the lines of a table by these attributes.
string(REPLACE "<table>" "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">" body "${body}")
# A cell with a colour of its own keeps dark ink on a dark desktop too.
string(REPLACE "<td bgcolor" "<td style=\"color:#101010\" bgcolor" body "${body}")
file(STRINGS ${PAGE} heading REGEX "^# " LIMIT_COUNT 1 ENCODING UTF-8)
string(REGEX REPLACE "^# (<a name=\"[a-z-]*\"></a>)?" "" title "${heading}")
file(WRITE ${HTML} "<!DOCTYPE html>
<html lang=\"it\">
<head><meta charset=\"utf-8\"><title>${title}</title></head>
<body>
${body}</body>
</html>
")
