using System;
using System.Runtime.InteropServices;
using ZRString;
using static ZRString.Handles;

/// <summary>A status other than 0, and the function that returned it.</summary>
public class InvalidArgumentException : ArgumentException
{
    public InvalidArgumentException(string function, int status)
        : base($"{function}: parameter {status - kZRStatusFirstParameter + 1} is invalid")
    {
        Status = status;
    }

    public int Status { get; }
}

/// <summary>
/// Owns a string. There is no finalizer: finalizers run on a thread of their own, and strings that
/// share their text count its holders without locks. A string that is not disposed of is leaked.
/// </summary>
public class Text : IDisposable
{
    public Text(string text)
    {
        char[] units = (text + '\0').ToCharArray(); // Mono passes an empty array as null
        int status = ZRStringCreateFromUniChars(units, 0, text.Length, out ZRStringRef handle);
        Check(nameof(ZRStringCreateFromUniChars), status);
        Handle = handle;
    }

    internal Text(ZRStringRef handle)
    {
        Handle = handle;
    }

    public int Length
    {
        get
        {
            Check(nameof(ZRStringGetLength), ZRStringGetLength(Handle, out int length));
            return length;
        }
    }

    internal ZRStringRef Handle { get; private set; }

    public int Find(Text pattern, int start = 0)
    {
        int status = ZRStringFind(Handle, start, kZRToEnd, pattern.Handle, out int index);
        Check(nameof(ZRStringFind), status);
        return index;
    }

    public bool EqualsIgnoringCase(Text other)
    {
        int status = ZRStringICompare(Handle, 0, kZRToEnd, other.Handle, 0, kZRToEnd,
            kZRCompareIgnoreCase, out int order);
        Check(nameof(ZRStringICompare), status);
        return order == 0;
    }

    public override string ToString()
    {
        Check(nameof(ZRStringGetBuffer), ZRStringGetBuffer(Handle, out IntPtr buffer));
        return buffer == IntPtr.Zero ? "" : Marshal.PtrToStringUni(buffer, Length);
    }

    public void Dispose()
    {
        // The second time the handle is null: status 4, and nothing is destroyed.
        ZRStringDestroy(Handle);
        Handle = default(ZRStringRef);
    }

    internal static void Check(string function, int status)
    {
        if (status != kZRStatusSuccess)
        {
            throw new InvalidArgumentException(function, status);
        }
    }
}

/// <summary>A string that can be edited. Its handle is also that of a string.</summary>
public class MutableText : Text
{
    /// <summary>Makes a copy, which shares the text until it is edited.</summary>
    public MutableText(Text source)
        : base(CopyOf(source))
    {
    }

    public void ToUpper()
    {
        var handle = new ZRMutableStringRef { Address = Handle.Address };
        Check(nameof(ZRMutableStringToUpper), ZRMutableStringToUpper(handle));
    }

    private static ZRMutableStringRef CopyOf(Text source)
    {
        int status = ZRMutableStringCreateCopy(source.Handle, out ZRMutableStringRef handle);
        Check(nameof(ZRMutableStringCreateCopy), status);
        return handle;
    }
}

/// <summary>Creates a string, edits a copy, compares, searches, and meets a status.</summary>
public static class Program
{
    public static void Main()
    {
        using (var name = new Text("Straße"))
        using (var sign = new MutableText(name))
        using (var pattern = new Text("SS"))
        {
            sign.ToUpper();
            Console.WriteLine($"{name} became {sign}");
            Console.WriteLine($"{pattern} at {sign.Find(pattern)} of {sign.Length}");
            bool equal = name.EqualsIgnoringCase(sign);
            Console.WriteLine(equal ? "equal but for case" : "different");
            try
            {
                sign.Find(pattern, -1);
            }
            catch (InvalidArgumentException error)
            {
                Console.WriteLine(error.Message);
            }
        }
    }
}
