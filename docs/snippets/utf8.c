/* Prints what the page on conversions shows for C. */

#include <ZRString/ZRStringUtf8.h>
#include <stdio.h>
#include <string.h>

int main(void) {
  //! [c]
  ZRMutableStringRef__* greeting = NULL;
  char text[8];
  size_t size = 0;
  ZRLong status =
      ZRMutableStringCreateFromUtf8("Gru", ZR_TO_ZERO_BYTE,
                                    &greeting);
  if (status == 0)
    status =
        ZRMutableStringAppendUtf8(greeting,
                                  "\xC3\x9F!\xE2\x82\xAC",
                                  6);
  if (status == 0)
    status =
        ZRStringExtractIntoUtf8((ZRStringRef__*)greeting,
                                text, sizeof text, &size);
  if (status == 0)
    printf("%s (%d of %d bytes)\n", text, (int)strlen(text),
           (int)size);
  ZRMutableStringDestroy(greeting);
  //! [c]
  return (int)status;
}
