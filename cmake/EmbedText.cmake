# Makes a C++ source fragment of a text: a raw literal, and the hash by which a Content-Security-Policy knows it.
#
#   cmake -DINPUT=page.css -DOUTPUT=page.css.inc -P EmbedText.cmake
file(READ "${INPUT}" text)
file(SHA256 "${INPUT}" digits)

# The policy wants the hash in base64, three bytes at a time.
set(alphabet "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
set(hash "")
foreach(first RANGE 0 60 6)
  string(SUBSTRING "${digits}00" ${first} 6 three)
  math(EXPR bits "0x${three}")
  foreach(shift 18 12 6 0)
    math(EXPR index "(${bits} >> ${shift}) & 63")
    string(SUBSTRING "${alphabet}" ${index} 1 character)
    string(APPEND hash "${character}")
  endforeach()
endforeach()
string(REGEX REPLACE ".$" "=" hash "${hash}") # the last byte of 33 is none

file(WRITE "${OUTPUT}" "{R\"embedded(${text})embedded\", \"sha256-${hash}\"}\n")
