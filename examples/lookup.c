/* Looks up a word in a word list with one entry per line, through the handle interface. Both are in
 * UTF-8 or, by an option, in windows-1252. The list is sorted in linguistic order; then entries
 * that equal an earlier one without regard to case are dropped. */

#include <ZRString/ZRStringUtf8.h>
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* In bytes. */
#ifndef LONGEST_LINE
#define LONGEST_LINE 2000000000
#endif

static void Fail(const char* what, const char* subject) {
  fprintf(stderr, "lookup: %s%s\n", what, subject);
  exit(2);
}

/* A status other than 0 means an invalid argument, which would be a bug of this program, or that
 * there is no memory for the array. */
static void Check(ZRLong status) {
  if (status != kZRStatusSuccess) {
    fprintf(stderr, "lookup: unexpected status %ld\n", (long)status);
    exit(3);
  }
}

static ZRLong Compare(ZRStringRef__* left, ZRStringRef__* right, ZRULong options) {
  ZRLong result = 0;
  Check(ZRStringICompare(left, 0, kZRToEnd, right, 0, kZRToEnd, options, &result));
  return result;
}

static int InOrder(const void* left, const void* right) {
  return (int)Compare(*(ZRStringRef__* const*)left, *(ZRStringRef__* const*)right,
                      kZRCompareCollated);
}

/* Puts entries that are equal without regard to case next to each other, in linguistic order. */
static int ByText(const void* left, const void* right) {
  const ZRLong order =
      Compare(*(ZRStringRef__* const*)left, *(ZRStringRef__* const*)right, kZRCompareIgnoreCase);
  return order != 0 ? (int)order : InOrder(left, right);
}

static unsigned char* ReadFile(const char* path, size_t* size) {
  FILE* const file = fopen(path, "rb");
  unsigned char* bytes = NULL;
  size_t capacity = 0;
  *size = 0;
  if (!file)
    Fail("cannot read ", path);
  do {
    capacity = capacity * 2 + 65536;
    bytes = realloc(bytes, capacity);
    if (!bytes)
      Fail("no memory for ", path);
    *size += fread(bytes + *size, 1, capacity - *size, file);
  } while (*size == capacity);
  if (ferror(file))
    Fail("cannot read ", path);
  fclose(file);
  return bytes;
}

static ZRStringRef__* Decoded(const unsigned char* text, size_t size, int windows1252) {
  ZRStringRef__* string = NULL;
  ZRLong status;
  if (windows1252)
    status = ZRStringCreateFromLocalString(text, 0, (ZRLong)size, &string);
  else
    status = ZRStringCreateFromUtf8((const char*)text, size, &string);
  if (status == kZRStatusNoMemory)
    Fail("no memory", "");
  Check(status);
  return string;
}

/* Appends a string for each line of a file that is not empty. */
static void Decode(const char* path, int windows1252, ZRStringPtrArrayRef__* words) {
  size_t size = 0;
  unsigned char* const bytes = ReadFile(path, &size);
  size_t start = 0;
  while (start < size) {
    const unsigned char* const newline = memchr(bytes + start, '\n', size - start);
    const size_t limit = newline ? (size_t)(newline - bytes) : size;
    size_t length = limit - start;
    if (length > 0 && bytes[limit - 1] == '\r')
      --length;
    if (length > LONGEST_LINE)
      Fail("a line is too long in ", path);
    if (length > 0)
      Check(ZRStringPtrArrayPushBack(words, Decoded(bytes + start, length, windows1252)));
    start = limit + 1;
  }
  free(bytes);
}

static ZRStringRef__* EntryAt(ZRStringPtrArrayRef__* words, ZRULong index) {
  ZRStringRef__* entry = NULL;
  Check(GetZRStringRefAt(words, (ZRLong)index, &entry));
  return entry;
}

static ZRULong SizeOf(ZRStringPtrArrayRef__* words) {
  ZRULong size = 0;
  Check(ZRStringPtrArraySize(words, &size));
  return size;
}

/* Sorts the list and then drops entries that equal an earlier one without regard to case. Arrays
 * have no sort function: the handles are taken out, sorted and put back. */
static void Sort(ZRStringPtrArrayRef__* words) {
  const ZRULong size = SizeOf(words);
  ZRULong kept = 0;
  ZRStringRef__** const handles = malloc((size + 1) * sizeof *handles);
  if (!handles)
    Fail("no memory", "");
  for (ZRULong i = 0; i < size; ++i)
    handles[i] = EntryAt(words, i);
  Check(ZRStringPtrArrayEraseAll(words));
  qsort(handles, size, sizeof *handles, ByText);
  for (ZRULong i = 0; i < size; ++i) {
    if (kept > 0 && Compare(handles[kept - 1], handles[i], kZRCompareIgnoreCase) == 0)
      Check(ZRStringDestroy(handles[i]));
    else
      handles[kept++] = handles[i];
  }
  qsort(handles, kept, sizeof *handles, InOrder);
  for (ZRULong i = 0; i < kept; ++i)
    Check(ZRStringPtrArrayPushBack(words, handles[i]));
  free(handles);
}

static ZRULong LowerBound(ZRStringPtrArrayRef__* words, ZRStringRef__* word) {
  ZRULong first = 0;
  ZRULong count = SizeOf(words);
  while (count > 0) {
    const ZRULong half = count / 2;
    if (Compare(EntryAt(words, first + half), word, kZRCompareCollated) < 0) {
      first += half + 1;
      count -= half + 1;
    } else {
      count = half;
    }
  }
  return first;
}

int main(int argc, char** argv) {
  const int windows1252 = argc > 1 && strcmp(argv[1], "--windows-1252") == 0;
  if (argc != 3 + windows1252)
    Fail("usage: lookup [--windows-1252] FILE WORD", "");
  const char* const path = argv[1 + windows1252];
  const char* const wanted = argv[2 + windows1252];
  ZRStringPtrArrayRef__* words = NULL;
  Check(ZRStringPtrArrayCreate(&words));
  ZRStringRef__* const word = Decoded((const unsigned char*)wanted, strlen(wanted), windows1252);
  Decode(path, windows1252, words);
  const ZRULong decoded = SizeOf(words);
  Sort(words);

  const ZRULong place = LowerBound(words, word);
  const int found =
      place < SizeOf(words) && Compare(EntryAt(words, place), word, kZRCompareCollated) == 0;
  printf("%lu entries, %lu kept\n", (unsigned long)decoded, (unsigned long)SizeOf(words));
  printf(found ? "entry %lu\n" : "not in the list; it would be entry %lu\n",
         (unsigned long)place + 1);

  Check(ZRStringDestroy(word));
  Check(ZRStringPtrArrayDeleteAll(words));
  Check(ZRStringPtrArrayDestroy(words));
  if (fflush(stdout) != 0)
    Fail("cannot write to standard output: ", strerror(errno));
  return 0;
}
