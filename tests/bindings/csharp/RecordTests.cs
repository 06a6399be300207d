// The records have the layout of the C compiler, and the library reads and fills them correctly.
// SPDX-License-Identifier: MIT
using System;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Text;
using Vexil64;

static class RecordTests
{
    public static void HaveTheDocumentedLayout()
    {
        Expect.Equal(File.ReadAllText(Runner.LayoutFile), Layout());
    }

    public static void HaveTheLayoutOfTheCCompiler()
    {
        Expect.Equal(Runner.Output(Runner.RecordLayout), Layout());
    }

    public static void EveryExportedFunctionIsDeclared()
    {
        string exports = Path.Combine(Path.GetDirectoryName(Runner.LayoutFile), "exports.txt");
        string[] expected = File.ReadAllText(exports).Split(new[] { '\n', ' ' }, StringSplitOptions.RemoveEmptyEntries);
        string[] declared = typeof(Native).GetMethods(BindingFlags.Public | BindingFlags.Static).Select(m => m.Name).ToArray();
        Array.Sort(expected, string.CompareOrdinal);
        Array.Sort(declared, string.CompareOrdinal);
        Expect.Equal(17, declared.Length);
        Expect.Sequence(expected, declared);
    }

    public static void RecordsPassThroughTheLibraryUnchanged()
    {
        Native.VexilClearData();
        var message = Filled<CanMessageRecord>(0);
        var signal = Filled<CanSignalRecord>(3);
        signal.ReceiverList = Encoding.ASCII.GetBytes(string.Join(",", "abcdefgh".Select(c => new string(c, 31))) + "\0");
        var description = Filled<CanEnumRecord>(7);
        Expect.Equal(1, Native.VexilAppendCanMessage(ref message));
        Expect.Equal(1, Native.VexilAppendCanSignalToCanMessage(0, ref signal));
        Expect.Equal(1, Native.VexilAppendEnumToCanSignal(0, 0, ref description));

        CanMessageRecord gotMessage;
        CanSignalRecord gotSignal;
        CanEnumRecord gotDescription;
        Expect.Equal(1, Native.VexilGetCanMessageData(0, out gotMessage));
        Expect.Equal(1, Native.VexilGetCanSignalData(0, 0, out gotSignal));
        Expect.Equal(1, Native.VexilGetCanSignalEnumData(0, 0, 0, out gotDescription));
        // These fields are set by the library.
        Expect.Equal(Text.Load(message.LongName).Substring(0, 32), Text.Load(gotMessage.Name));
        Expect.Equal(1UL, gotMessage.SignalCount);
        Expect.Equal(Text.Load(signal.LongName).Substring(0, 32), Text.Load(gotSignal.Name));
        Expect.Equal(Text.Load(signal.Unit), Text.Load(gotSignal.UnitUtf8));
        Expect.Equal(1U, gotSignal.EnumCount);
        ExpectSameFields(message, gotMessage, "Name", "SignalCount", "SendType", "CycleTime");
        ExpectSameFields(signal, gotSignal, "Name", "EnumCount", "UnitUtf8");
        ExpectSameFields(description, gotDescription);
    }

    public static void TheDatabaseInfoPassesByteByByte()
    {
        foreach (ulong size in new ulong[] { 0, 4, 8 })
        {
            var info = new DatabaseInfo();
            Native.VexilSetDatabaseInfo(ref info, 8);
            info = new DatabaseInfo { ProtocolType = (Protocol)0x01020304, BusType = (Bus)0x05060708 };
            Native.VexilSetDatabaseInfo(ref info, size);
            Native.VexilGetDatabaseInfo(out info, 8);
            Expect.Equal(size >= 4 ? 0x01020304U : 0, (uint)info.ProtocolType);
            Expect.Equal(size == 8 ? 0x05060708U : 0, (uint)info.BusType);
        }
    }

    public static void AParseErrorHasItsFields()
    {
        byte[] path = Encoding.UTF8.GetBytes(Path.Combine(Runner.Samples, "roof.dbc") + "\0");
        ResultCode code;
        ParseError error;
        Expect.Equal(1, Native.VexilReadDbcFile(path, (uint)path.Length, out code));
        Expect.Equal(2UL, Native.VexilGetNumCanErrors());
        Expect.Equal(1, Native.VexilGetErrorData(1, out error));
        Expect.Equal(Step.SignalName, error.Code);
        Expect.Equal(17U, error.Line);
        Expect.Equal("SG_ Speed 2|6@1+", Text.Load(error.Text).Substring(0, 16));
    }

    static string Layout()
    {
        var lines = new StringBuilder();
        foreach (Type type in new[] { typeof(DatabaseInfo), typeof(CanMessageRecord), typeof(CanSignalRecord), typeof(CanEnumRecord), typeof(ParseError) })
        {
            lines.Append(type.Name + " " + Marshal.SizeOf(type) + "\n");
            foreach (FieldInfo field in type.GetFields())
            {
                string name = char.ToLowerInvariant(field.Name[0]) + field.Name.Substring(1);
                lines.Append(type.Name + "." + name + " " + Marshal.OffsetOf(type, field.Name) + " " + Size(field) + "\n");
            }
        }
        return lines.ToString();
    }

    static int Size(FieldInfo field)
    {
        if (field.FieldType.IsArray)
            return ((MarshalAsAttribute)field.GetCustomAttributes(typeof(MarshalAsAttribute), false)[0]).SizeConst;
        return Marshal.SizeOf(field.FieldType.IsEnum ? Enum.GetUnderlyingType(field.FieldType) : field.FieldType);
    }

    // Returns a record filled with a byte pattern. Each text ends with a NUL.
    static T Filled<T>(int start) where T : struct
    {
        int size = Marshal.SizeOf(typeof(T));
        IntPtr memory = Marshal.AllocHGlobal(size);
        try
        {
            for (int i = 0; i < size; ++i)
                Marshal.WriteByte(memory, i, (byte)('a' + (start + i) % 26));
            object record = Marshal.PtrToStructure(memory, typeof(T));
            foreach (FieldInfo field in typeof(T).GetFields().Where(f => f.FieldType.IsArray))
            {
                var text = (byte[])field.GetValue(record);
                text[text.Length - 1] = 0;
            }
            return (T)record;
        }
        finally
        {
            Marshal.FreeHGlobal(memory);
        }
    }

    static void ExpectSameFields<T>(T expected, T actual, params string[] except)
    {
        foreach (FieldInfo field in typeof(T).GetFields().Where(f => !except.Contains(f.Name)))
        {
            object a = field.GetValue(expected), b = field.GetValue(actual);
            if (field.FieldType.IsArray)
                Expect.Equal(field.Name + Text.Load((byte[])a), field.Name + Text.Load((byte[])b));
            else
                Expect.Equal(field.Name + a, field.Name + b);
        }
    }
}
