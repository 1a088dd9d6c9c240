//! ZRString in Rust: creates a string, edits a copy, compares, searches, and meets a status.

mod handles;

use handles::*;
use std::{fmt, ops::Deref, ptr, slice};

/// A status other than 0, and the function that returned it.
#[derive(Debug)]
struct InvalidArgument {
    function: &'static str,
    status: ZRLong,
}

impl fmt::Display for InvalidArgument {
    fn fmt(&self, formatter: &mut fmt::Formatter) -> fmt::Result {
        let position = self.status - kZRStatusFirstParameter + 1;
        write!(formatter, "{}: parameter {} is invalid", self.function, position)
    }
}

impl std::error::Error for InvalidArgument {}

fn check(function: &'static str, status: ZRLong) -> Result<(), InvalidArgument> {
    if status != kZRStatusSuccess {
        return Err(InvalidArgument { function, status });
    }
    Ok(())
}

/// Owns a string. The pointer keeps it from being Send or Sync, as it must be: strings that share
/// their text count its holders without locks.
struct Text(*mut ZRStringRef__);

impl Text {
    fn new(text: &str) -> Result<Text, InvalidArgument> {
        let units: Vec<u16> = text.encode_utf16().collect();
        let length = ZRLong::try_from(units.len()).expect("a text of less than 2^31 units");
        let mut out = ptr::null_mut();
        let status = unsafe { ZRStringCreateFromUniChars(units.as_ptr(), 0, length, &mut out) };
        check("ZRStringCreateFromUniChars", status)?;
        Ok(Text(out))
    }

    fn units(&self) -> Result<&[u16], InvalidArgument> {
        let (mut buffer, mut length) = (ptr::null_mut(), 0);
        check("ZRStringGetBuffer", unsafe { ZRStringGetBuffer(self.0, &mut buffer) })?;
        check("ZRStringGetLength", unsafe { ZRStringGetLength(self.0, &mut length) })?;
        if buffer.is_null() {
            return Ok(&[]);
        }
        // An edit needs &mut self, so that nothing moves the units while they are borrowed.
        Ok(unsafe { slice::from_raw_parts(buffer, length as usize) })
    }

    fn find(&self, pattern: &Text, start: ZRLong) -> Result<Option<usize>, InvalidArgument> {
        let mut index = kZRNotFound;
        let status = unsafe { ZRStringFind(self.0, start, kZRToEnd, pattern.0, &mut index) };
        check("ZRStringFind", status)?;
        Ok(usize::try_from(index).ok())
    }

    fn equals_ignoring_case(&self, other: &Text) -> Result<bool, InvalidArgument> {
        let mut order = 0;
        let status = unsafe {
            let options = kZRCompareIgnoreCase;
            ZRStringICompare(self.0, 0, kZRToEnd, other.0, 0, kZRToEnd, options, &mut order)
        };
        check("ZRStringICompare", status)?;
        Ok(order == 0)
    }
}

impl fmt::Display for Text {
    fn fmt(&self, formatter: &mut fmt::Formatter) -> fmt::Result {
        let units = self.units().map_err(|_| fmt::Error)?;
        formatter.write_str(&String::from_utf16_lossy(units))
    }
}

impl Drop for Text {
    fn drop(&mut self) {
        unsafe { ZRStringDestroy(self.0) };
    }
}

/// A mutable string is a string, too: the same handle, which is destroyed once.
struct MutableText(Text);

impl MutableText {
    /// A copy, which shares the text of `source` until it is edited.
    fn copy_of(source: &Text) -> Result<MutableText, InvalidArgument> {
        let mut out = ptr::null_mut();
        let status = unsafe { ZRMutableStringCreateCopy(source.0, &mut out) };
        check("ZRMutableStringCreateCopy", status)?;
        Ok(MutableText(Text(out.cast())))
    }

    fn to_upper(&mut self) -> Result<(), InvalidArgument> {
        let status = unsafe { ZRMutableStringToUpper(self.0 .0.cast()) };
        check("ZRMutableStringToUpper", status)
    }
}

impl Deref for MutableText {
    type Target = Text;

    fn deref(&self) -> &Text {
        &self.0
    }
}

fn main() -> Result<(), InvalidArgument> {
    let name = Text::new("Straße")?;
    let mut sign = MutableText::copy_of(&name)?;
    sign.to_upper()?;
    println!("{} became {}", name, *sign);

    let pattern = Text::new("SS")?;
    if let Some(place) = sign.find(&pattern, 0)? {
        println!("{} at {} of {}", pattern, place, sign.units()?.len());
    }
    let equal = name.equals_ignoring_case(&sign)?;
    println!("{}", if equal { "equal but for case" } else { "different" });

    if let Err(error) = sign.find(&pattern, -1) {
        println!("{}", error);
    }
    Ok(())
}
