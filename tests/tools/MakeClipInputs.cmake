# cmake -DEXAMPLES=... -DWORK=... -P MakeClipInputs.cmake
# Writes the clip JSON inputs that are too large to keep in the tree, or are best kept next to their
# boundary: nesting around the limit of 16 levels, the size around the limit of 1 MiB.
file(MAKE_DIRECTORY ${WORK})

function(nested file prefix levels suffix)
    string(REPEAT "[" ${levels} open)
    string(REPEAT "]" ${levels} close)
    file(WRITE ${WORK}/${file} "${prefix}${open}${close}${suffix}")
endfunction()

# The object itself is the first level.
nested(deep-raw.json "{\"rawBytes\": " 70000 "}")
nested(deep-hex.json "{\"name\": {\"hex\": " 70000 "}}")
nested(depth-16.json "{\"x\": " 15 "}")
nested(depth-17.json "{\"x\": " 16 "}")
nested(depth-17-lines.json "{\n  \"x\":\n " 16 "}")
# Braces in strings, after an escaped quote too, are no nesting (a bracket would break the CMake list of
# the test that matches the message).
string(REPEAT "{" 20 brackets)
file(WRITE ${WORK}/depth-in-string.json "{\"x\\\"${brackets}\": \"\\\\\\\"${brackets}\"}")

# examples/clip.json followed by spaces up to the limit, and one byte beyond it.
file(READ ${EXAMPLES}/clip.json clip)
string(LENGTH "${clip}" length)
math(EXPR padding "1048576 - ${length}")
string(REPEAT " " ${padding} spaces)
file(WRITE ${WORK}/size-limit.json "${clip}${spaces}")
file(WRITE ${WORK}/size-over.json "${clip}${spaces} ")
