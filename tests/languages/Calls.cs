// Calls every function of Handles.cs with each parameter that it tests invalid in turn, and
// compares the statuses. Out-parameters are not tried. Its argument is HandleRows.inc.
using System;
using System.Collections.Generic;
using System.IO;
using System.Reflection;
using ZRString;
using static ZRString.Handles;

public static class Calls
{
    static readonly char[] units = { 'b', '€', 'b', '\0' };
    static ZRStringRef text;
    static ZRMutableStringRef mutable;
    static ZRStringPtrArrayRef array;
    static int failures;

    static void Expect(string call, object result, object expected)
    {
        if (!expected.Equals(result))
        {
            Console.WriteLine($"{call}: {result}, not {expected}");
            ++failures;
        }
    }

    // The arguments, invalid and valid, for a kind of parameter in HandleRows.inc.
    static object[] ArgumentsFor(string kind, Type type)
    {
        switch (kind)
        {
            case "string": return new object[] { default(ZRStringRef), text };
            case "mutableString": return new object[] { default(ZRMutableStringRef), mutable };
            case "array": return new object[] { default(ZRStringPtrArrayRef), array };
            case "units":
                return new object[] { null, type == typeof(byte[]) ? new byte[2] : (object)units };
            case "notNegative": case "toEnd": case "count":
                return new object[] { int.MinValue, 1 };
            case "index": return new object[] { int.MaxValue, 0 };
            default: // "out" and "any"
                if (type == typeof(char[]))
                    return new object[] { units };
                type = type.IsByRef ? type.GetElementType() : type;
                return new[] { Activator.CreateInstance(type) };
        }
    }

    static void CallInvalid(string[] row)
    {
        MethodInfo function = typeof(Handles).GetMethod(row[0])
            ?? throw new MissingMethodException(row[0]);
        ParameterInfo[] parameters = function.GetParameters();
        Expect($"{row[0]}, number of parameters", parameters.Length, row.Length - 2);
        for (int position = 0; position < parameters.Length; ++position)
        {
            var arguments = new List<object>();
            int invalid = 0;
            foreach (ParameterInfo parameter in parameters)
            {
                string kind = row[parameter.Position + 2];
                object[] values = ArgumentsFor(kind, parameter.ParameterType);
                if (values.Length == 2 && values[0] is int)
                    Expect($"{row[0]}, {parameter.Name}", parameter.ParameterType, typeof(int));
                bool isInvalid = parameter.Position == position && values.Length == 2;
                arguments.Add(values[isInvalid ? 0 : values.Length - 1]);
                invalid += isInvalid ? 1 : 0;
            }
            int status = row[position + 2] == "index" ? 12
                : row[0] == "InsertZRStringRefAt" && position == 2 ? 5 : 4 + position;
            if (invalid > 0)
                Expect($"{row[0]}, {parameters[position].Name}",
                    function.Invoke(null, arguments.ToArray()), status);
        }
    }

    // The types of out-parameters other than addresses, and those of units and bytes.
    static void CallValid()
    {
        ZRStringCreateFromUniChars(units, 0, kZRToEnd, out text);
        ZRMutableStringCreateEmpty(out mutable);
        ZRStringPtrArrayCreate(out array);
        ZRStringPtrArrayPushBack(array, text);
        byte[] bytes = { (byte)'b', 0x80 };
        ZRStringCreateFromLocalString(bytes, 0, 2, out ZRStringRef local);
        ZRStringCreateFromCString(bytes, 0, 2, out ZRStringRef other);
        ZRStringCompare(local, 0, kZRToEnd, other, 0, kZRToEnd, out int order);
        Expect("ZRStringCompare", order, 0);
        ZRStringLastIndexOf(local, '€', out int index);
        Expect("ZRStringLastIndexOf", index, 1);
        char[] found = new char[3];
        ZRStringGetUniCharsAt(text, 1, 2, found);
        Expect("ZRStringGetUniCharsAt", new string(found), "€b\0");
        ZRStringIsEmpty(mutable, out byte isEmpty);
        Expect("ZRStringIsEmpty", isEmpty, (byte)1);
        ZRStringPtrArraySize(array, out uint size);
        Expect("ZRStringPtrArraySize", size, 1u);
    }

    public static int Main(string[] arguments)
    {
        CallValid();
        int rows = 0;
        foreach (string line in File.ReadAllLines(arguments[0]))
        {
            if (!line.StartsWith("ZR_ROW("))
                continue;
            CallInvalid(line.Substring(7).TrimEnd(')').Split(new[] { ", " }, 0));
            ++rows;
        }
        const BindingFlags declared = BindingFlags.Static | BindingFlags.Public;
        Expect("Handles, number of functions", typeof(Handles).GetMethods(declared).Length, rows);
        return failures == 0 ? 0 : 1;
    }
}
