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

/// An ordered list of string pointers, which it does not own.
///
/// **Ownership.** The array stores pointers as they are given, null included, and owns only its
/// storage. Destroying, assigning and erasing drop pointers and leave the strings alive. The one
/// exception is DeleteAll(), which deletes every string in the array. Copies of an array hold the
/// same pointers.
///
/// **Indices** count from 0 and are valid below Size(). Iterators follow the rules of
/// `std::vector`, which the storage is.
///
/// **Errors.** Growing throws what `std::vector` throws (`std::bad_alloc`, `std::length_error`) and
/// leaves the entries as they were.
///
/// **Threads.** One thread at a time.
class ZR_API ZRStringPtrArray {
 public:
  ZRStringPtrArray();                               ///< No entries.
  ZRStringPtrArray(const ZRStringPtrArray& other);  ///< The same pointers in the same order.
  ~ZRStringPtrArray();                              ///< Deletes no string.

  /// Drops the entries, deleting no string, and takes over the pointers of `other`.
  ZRStringPtrArray& operator=(const ZRStringPtrArray& other);

  ZRULong Size() const;  ///< Number of entries.
  bool Empty() const;    ///< Whether there are none.

  /// The entry at `index`; for an index outside the array the last entry.
  /// @throws std::out_of_range when the array is empty
  ZRString* operator[](ZRLong index);
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers"  // the const is part of the published type
#endif
  ZRString* const operator[](ZRLong index) const;  ///< The same.
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
  ZRString* GetString(ZRLong index);  ///< The same.

  /// Puts `string` in the place of the entry at `index`, which is dropped, not deleted.
  /// @return false, with nothing changed, for an index outside the array
  bool SetString(ZRLong index, ZRString* const string);

  /// Inserts `string` before the entry at `index`; PushBack() appends.
  /// @return false, with nothing changed, for an index outside the array, Size() included
  bool Insert(ZRLong index, ZRString* const string);

  void PushBack(ZRString* const string);  ///< Appends an entry.

  /// Drops the entry at `index`, deleting no string; nothing for an index outside the array.
  void Erase(ZRLong index);

  /// Drops the entry at `position`, which must point to one, deleting no string.
  /// @return the position of the entry that followed it
  std::vector<ZRString*>::iterator Erase(std::vector<ZRString*>::iterator position);

  void EraseAll();  ///< Drops all entries, deleting no string.

  /// Deletes every string in the array, a ZRStringMutator as one, and drops all entries.
  ///
  /// Every entry that is not null must have been created with `new` and stand in one entry only.
  void DeleteAll();

  std::vector<ZRString*>::iterator Begin();              ///< The vector's begin().
  std::vector<ZRString*>::iterator End();                ///< The vector's end().
  std::vector<ZRString*>::const_iterator Begin() const;  ///< The vector's begin().
  std::vector<ZRString*>::const_iterator End() const;    ///< The vector's end().

  /// This object's own address as a handle, valid as long as the object lives.
  ZRStringPtrArrayRef__* GetZRStringPtrArrayRef();

 private:
  std::vector<ZRString*> strings_;
};

/// The array that a handle stands for; null for a null handle.
ZR_API ZRStringPtrArray* ZR_CALL GetZRStringPtrArrayFromRef(ZRStringPtrArrayRef__* handle);

#endif
