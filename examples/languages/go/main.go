// Sign uses ZRString: it creates a string, edits a copy, compares, searches, and meets a status.
package main

import (
	"errors"
	"fmt"
	"math"
	"os"
	"unicode/utf16"
	"unsafe"

	zr "sign/zrstring"
)

// InvalidArgument is a status other than 0, and the function that returned it.
type InvalidArgument struct {
	Function string
	Status   int32
}

func (e *InvalidArgument) Error() string {
	position := e.Status - zr.ZRStatusFirstParameter + 1
	return fmt.Sprintf("%s: parameter %d is invalid", e.Function, position)
}

func check(function string, status int32) error {
	if status != zr.ZRStatusSuccess {
		return &InvalidArgument{function, status}
	}
	return nil
}

// Text owns a string. Goroutines that use texts with shared contents must take turns. There is no
// finalizer, because finalizers run at the same time as the program's goroutines: call Close.
type Text struct {
	handle zr.ZRStringRef
}

// NewText makes a string from UTF-8.
func NewText(text string) (*Text, error) {
	units := utf16.Encode([]rune(text))
	if len(units) > math.MaxInt32 {
		return nil, errors.New("the text is too long")
	}
	length := int32(len(units))
	units = append(units, 0) // so that there is a first unit, whose address is passed
	var out zr.ZRStringRef
	status := zr.ZRStringCreateFromUniChars(&units[0], 0, length, &out)
	return &Text{out}, check("ZRStringCreateFromUniChars", status)
}

// Close destroys the string. Calling it again does nothing: a null handle is refused.
func (t *Text) Close() {
	zr.ZRStringDestroy(t.handle)
	t.handle = nil
}

// units gives the string's own memory, which is valid until the string is edited or closed.
func (t *Text) units() ([]uint16, error) {
	var buffer *uint16
	var length int32
	if err := check("ZRStringGetBuffer", zr.ZRStringGetBuffer(t.handle, &buffer)); err != nil {
		return nil, err
	}
	err := check("ZRStringGetLength", zr.ZRStringGetLength(t.handle, &length))
	return unsafe.Slice(buffer, length), err
}

func (t *Text) String() string {
	units, err := t.units()
	if err != nil {
		return err.Error()
	}
	return string(utf16.Decode(units))
}

// Find gives the first place of pattern, or a negative number.
func (t *Text) Find(pattern *Text, start int32) (int32, error) {
	var index int32
	status := zr.ZRStringFind(t.handle, start, zr.ZRToEnd, pattern.handle, &index)
	return index, check("ZRStringFind", status)
}

// EqualFold reports whether two strings are equal but for case.
func (t *Text) EqualFold(other *Text) (bool, error) {
	var order int32
	status := zr.ZRStringICompare(t.handle, 0, zr.ZRToEnd, other.handle, 0, zr.ZRToEnd,
		zr.ZRCompareIgnoreCase, &order)
	return order == 0, check("ZRStringICompare", status)
}

// MutableText is a string that can be edited. Its handle is also that of a string.
type MutableText struct {
	Text
}

// Mutable makes a copy, which shares the text until it is edited.
func (t *Text) Mutable() (*MutableText, error) {
	var out zr.ZRMutableStringRef
	status := zr.ZRMutableStringCreateCopy(t.handle, &out)
	text := Text{zr.ZRStringRef(unsafe.Pointer(out))}
	return &MutableText{text}, check("ZRMutableStringCreateCopy", status)
}

// ToUpper maps the text to upper case.
func (m *MutableText) ToUpper() error {
	handle := zr.ZRMutableStringRef(unsafe.Pointer(m.handle))
	return check("ZRMutableStringToUpper", zr.ZRMutableStringToUpper(handle))
}

func run() error {
	name, err := NewText("Straße")
	if err != nil {
		return err
	}
	defer name.Close()
	sign, err := name.Mutable()
	if err != nil {
		return err
	}
	defer sign.Close()
	if err := sign.ToUpper(); err != nil {
		return err
	}
	fmt.Println(name, "became", sign)

	pattern, err := NewText("SS")
	if err != nil {
		return err
	}
	defer pattern.Close()
	place, err := sign.Find(pattern, 0)
	if err != nil {
		return err
	}
	units, err := sign.units()
	if err != nil {
		return err
	}
	fmt.Println(pattern, "at", place, "of", len(units))
	equal, err := name.EqualFold(&sign.Text)
	if err != nil {
		return err
	}
	fmt.Println(map[bool]string{true: "equal but for case", false: "different"}[equal])

	if _, err := sign.Find(pattern, -1); err != nil {
		fmt.Println(err)
	}
	return nil
}

func main() {
	if err := run(); err != nil {
		fmt.Fprintln(os.Stderr, err)
		os.Exit(1)
	}
}
