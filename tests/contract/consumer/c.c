/* A C program of somebody else's, built against the installed library. */
#include <kzm.h>
#include <stdio.h>
#include <string.h>

int main(void) {
  char* text;
  int is_right;
  if (!kzm_set_locale("en_US")) return 1;
  text = kzm_format_bandwidth("{\"bandwidthformat\": 2, \"space\": true}", 1500000.0);
  if (text == NULL) return 1;
  puts(text);
  is_right = strcmp(text, "11 Mb/s") == 0;
  kzm_free(text);
  return is_right ? 0 : 1;
}
