#ifndef ZRSTRING_ZRSTRINGPTRARRAY_H
#define ZRSTRING_ZRSTRINGPTRARRAY_H

#include <ZRString/ZRString.h>

#include <vector>

struct ZRStringPtrArrayRef__;

/// This vector is instantiated once, inside the library.
#if defined(_MSC_VER) && defined(ZRString_EXPORTS)
extern template class std::vector<ZRString*>;  // there dllexport belongs to the definition
#else
extern template class ZR_API std::vector<ZRString*>;
#endif

/// An ordered list of string pointers that it does not own.
///
/// @code
/// ZRStringPtrArray names;
/// names.PushBack(new ZRString("Ada", 0, kZRToEnd));
/// names.PushBack(new ZRStringMutator(ZRString("Grace", 0, kZRToEnd)));
/// assert(names.Size() == 2 && names[1]->CharAt(0) == 'G');
/// assert(names[7] == names[1]);  // outside the array: the last entry
/// names.DeleteAll();             // without it, the two strings would leak
/// assert(names.Empty());
/// @endcode
///
/// **Ownership.** The array stores pointers as they are given, null included, and owns only its
/// storage. Destroying it, assigning to it and erasing entries drop pointers and leave the strings
/// alive; only DeleteAll() deletes strings. Copies of an array hold the same pointers.
///
/// **Indices** count from 0 and are valid below Size(). The storage is a `std::vector`, whose rules
/// hold for iterators.
///
/// **Errors.** Growing throws what `std::vector` throws (`std::bad_alloc`, `std::length_error`) and
/// leaves the entries as they were.
///
/// **Threads.** An array may be used by only one thread at a time, except for reading.
class ZR_API ZRStringPtrArray {
 public:
  /// @name Creation and size
  /// @code
  /// const ZRString word("un", 0, kZRToEnd);
  /// ZRStringPtrArray words;
  /// words.PushBack(new ZRString(word));
  /// ZRStringPtrArray same(words);  // the same pointers
  /// assert(same.Size() == 1 && same[0] == words[0]);
  /// same.EraseAll();               // leaves the string alive
  /// assert(same.Empty() && *words[0] == word);
  /// words.DeleteAll();
  /// @endcode
  /// @{

  ZRStringPtrArray() noexcept;                      ///< An empty array.
  ZRStringPtrArray(const ZRStringPtrArray& other);  ///< Holds the same pointers in the same order.
  ~ZRStringPtrArray();                              ///< Does not delete the strings.

  /// Replaces the entries by the pointers of `other`. Does not delete the strings.
  ZRStringPtrArray& operator=(const ZRStringPtrArray& other);

  ZRULong Size() const noexcept;  ///< Number of entries.
  bool Empty() const noexcept;    ///< Whether there are no entries.

  /// @}

  /// @name Entries
  /// @code
  /// ZRString un("un", 0, kZRToEnd), deux("deux", 0, kZRToEnd), trois("trois", 0, kZRToEnd);
  /// ZRStringPtrArray words;  // of strings that somebody else owns
  /// words.PushBack(&un);
  /// words.PushBack(&trois);
  /// assert(words.Insert(1, &deux) && words[1] == &deux && words[2] == &trois);
  /// assert(words[9] == &trois);          // outside the array: the last entry
  /// assert(!words.SetString(3, &deux));  // outside the array: nothing changes
  /// @endcode
  /// @{

  /// The entry at `index`, or the last entry for an index outside the array.
  /// @throws std::out_of_range if the array is empty
  ZRString* operator[](ZRLong index);
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers"  // the const is part of the published type
#endif
  /// The entry at `index`, or the last entry for an index outside the array.
  /// @throws std::out_of_range if the array is empty
  ZRString* const operator[](ZRLong index) const;
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
  ZRString* GetString(ZRLong index);  ///< As operator[]().

  /// Replaces the entry at `index` by `string`. Does not delete the string that was there.
  /// @return false, with nothing changed, for an index outside the array
  bool SetString(ZRLong index, ZRString* const string) noexcept;

  /// Inserts `string` before the entry at `index`. PushBack() appends.
  /// @return false, with nothing changed, for an index outside the array, Size() included
  bool Insert(ZRLong index, ZRString* const string);

  void PushBack(ZRString* const string);  ///< Appends an entry.

  /// @}

  /// @name Removal, iteration and handle
  /// @code
  /// ZRStringPtrArray words;
  /// for (const char* word : {"un", "deux", "trois"})
  ///   words.PushBack(new ZRString(word, 0, kZRToEnd));
  /// ZRString* const first = words[0];
  /// words.Erase(0);  // does not delete the string
  /// delete first;
  /// ZRLong units = 0;
  /// for (auto word = words.Begin(); word != words.End(); ++word)
  ///   units += (*word)->GetLength();
  /// assert(units == 9);
  /// words.DeleteAll();  // deletes the other two
  /// @endcode
  /// @{

  /// Removes the entry at `index` and does not delete its string. Does nothing for an index outside
  /// the array.
  void Erase(ZRLong index) noexcept;

  /// Removes the entry at `position`, which must point to one, and does not delete its string.
  /// @return the position of the entry that followed it
  std::vector<ZRString*>::iterator Erase(std::vector<ZRString*>::iterator position) noexcept;

  void EraseAll() noexcept;  ///< Removes all entries. Does not delete the strings.

  /// Deletes every string in the array and removes all entries. Null entries are skipped.
  ///
  /// Every string must have been created with `new`, as a ZRString or a ZRStringMutator, and must
  /// be in one entry only.
  void DeleteAll() noexcept;

  std::vector<ZRString*>::iterator Begin() noexcept;              ///< The vector's begin().
  std::vector<ZRString*>::iterator End() noexcept;                ///< The vector's end().
  std::vector<ZRString*>::const_iterator Begin() const noexcept;  ///< The vector's begin().
  std::vector<ZRString*>::const_iterator End() const noexcept;    ///< The vector's end().

  /// This object's address as a handle, valid as long as the object lives.
  ZRStringPtrArrayRef__* GetZRStringPtrArrayRef() noexcept;

  /// @}

 private:
  std::vector<ZRString*> strings_;
};

/// The array that a handle stands for; null for a null handle.
ZR_API ZRStringPtrArray* ZR_CALL GetZRStringPtrArrayFromRef(ZRStringPtrArrayRef__* handle);

#endif
