#include <ZRString/ZRStringUtf8.h>
#include <stdio.h>
#include <stdlib.h>

int main(void) {
  ZRMutableStringRef__* list = NULL;
  ZRStringRef__ *oldFruit = NULL, *newFruit = NULL;
  char* text = NULL;

  ZRLong status =
      ZRMutableStringCreateFromUtf8("pomme, poire, pêche", ZR_TO_ZERO_BYTE, &list);
  if (status == 0)
    status = ZRStringCreateFromUtf8("poire", ZR_TO_ZERO_BYTE, &oldFruit);
  if (status == 0)
    status = ZRStringCreateFromUtf8("prune", ZR_TO_ZERO_BYTE, &newFruit);
  if (status == 0)
    status = ZRMutableStringFindAndReplace(list, 0, kZRToEnd, oldFruit, newFruit);
  if (status == 0)
    status = ZRMutableStringToUpper(list);
  /* A mutable string's handle is a string's, too. */
  if (status == 0)
    status = ZRStringAllocateUtf8((ZRStringRef__*)list, &text, NULL);

  if (status == 0)
    puts(text);
  else
    fprintf(stderr, "status %d\n", (int)status);

  free(text);
  ZRStringDestroy(newFruit); /* does nothing if there is no string */
  ZRStringDestroy(oldFruit);
  ZRMutableStringDestroy(list);
  return (int)status;
}
