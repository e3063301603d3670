/* A client of the installed library, in C: reads an "AlarmLamp" answer into
 * its record and packs it back. Prints the packed text; exits 0 on success. */
#include <kova/kova.h>
#include <kova/records/alarm.h>
#include <stdio.h>
#include <string.h>

int main(void) {
  AlarmLampRecord lamp;
  uint32_t filled = 0;
  char text[64];
  const char* answer = "{\"id\":7,\"result\":true,\"params\":{\"table\":{\"Mode\":2}}}";
  if (!KOVA_ParseData("AlarmLamp", answer, &lamp, sizeof lamp, &filled) || lamp.mode != 2 ||
      filled != sizeof lamp) {
    fprintf(stderr, "parse failed\n");
    return 1;
  }
  if (!KOVA_PacketData("AlarmLamp", &lamp, sizeof lamp, text, sizeof text) ||
      strcmp(text, "{ \"Mode\" : 2 }\n") != 0) {
    fprintf(stderr, "pack failed\n");
    return 1;
  }
  fputs(text, stdout);
  return 0;
}
