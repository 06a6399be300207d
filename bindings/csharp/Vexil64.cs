// vexil64 for C#: reads, extends and writes DBC files, and decodes and encodes frames. Add this one file to
// a program. It needs vexil64.dll or libvexil64.so, C# 6, and .NET, .NET Framework 4.5 or Mono.
// SPDX-License-Identifier: MIT
//
//  1. Two layers. Network is the object layer; its messages and signals are objects that later calls do
//     not change. Below it, Native has the seventeen functions of vexil64.h and the structs its records.
//     The comments of vexil64.h document both.
//  2. One database. The library has one database for the process, which holds the network that was read
//     or created last. Only this network can be extended and written.
//  3. Threads. Network takes a lock for each use of the library. A program that calls Native from several
//     threads must serialise these calls itself.
//  4. Errors. FileException: a file could not be read or written. LibraryException: the library is missing
//     or has another version. FrameException: a value could not be decoded or encoded. ArgumentException:
//     an argument is refused before the library is called. InvalidOperationException: the library now
//     holds another network, or a message cannot take another signal.
using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;

namespace Vexil64
{
    // -- Constants, as in vexil64.h --

    public enum ResultCode : uint
    {
        Reading = 0, Writing = 1, Closed = 2, PathTooLong = 3, PathInvalid = 4, PathEmpty = 5,
        OpenFailed = 6, StreamError = 8, EndOfFile = 9
    }

    public enum Step : uint
    {
        MessageId = 0, MessageName = 1, MessageSize = 2, SignalName = 3, SignalLayout = 4,
        SignalScaling = 5, SignalRange = 6
    }

    public enum Protocol : uint { PlainCan = 0, J1939 = 1, Nmea = 2 }

    public enum Bus : uint { ClassicCan = 0, CanFd = 1 }

    public enum Multiplex : uint { None = 0, Selector = 1, Selected = 2 }

    public enum ByteOrder : uint { BigEndian = 0, LittleEndian = 1 }

    public enum ValueType : uint { Unsigned = 0, Signed = 1, Float32 = 2, Float64 = 3 }

    public enum Order : uint { ByIdDescending = 0, ByNameAscending = 1, AsStored = 2 }

    public static class Limits
    {
        public const int ShortTextSize = 33;
        public const int LongTextSize = 256;
        public const int MaxPathBufferSize = 260;
        public const int MaxSignalsPerMessage = 10000;
    }

    // -- Records. Their fields are naturally aligned, as in C, so they need no packing. --

    [StructLayout(LayoutKind.Sequential)]
    public struct DatabaseInfo
    {
        public Protocol ProtocolType;
        public Bus BusType;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct CanMessageRecord
    {
        public uint Id;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Name;
        public uint Dlc;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] LongName;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Transmitter;
        public ulong SignalCount;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Comment;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] SendType;
        public int CycleTime;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct CanSignalRecord
    {
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Name;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] LongName;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Unit;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] ReceiverList;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Comment;
        public Multiplex MultiplexType;
        public uint MultiplexValue;
        public uint StartBit;
        public uint BitLength;
        public ByteOrder ByteOrder;
        public ValueType ValueType;
        public double Factor;
        public double Offset;
        public double Minimum;
        public double Maximum;
        public uint EnumCount;
        public int StartValue;
        public int InactiveValue;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] UnitUtf8;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct CanEnumRecord
    {
        public int Value;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Text;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct ParseError
    {
        public Step Code;
        public uint Line;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Text;
    }

    // -- The seventeen functions. They return byte instead of bool, which is marshalled as four bytes. --

    public static class Native
    {
        private const string Library = "vexil64";

        [DllImport(Library)] public static extern float VexilGetLibraryVersion();
        [DllImport(Library)] public static extern byte VexilReadDbcFile(byte[] path, uint pathBufferSize, out ResultCode resultCode);
        [DllImport(Library)] public static extern void VexilClearData();
        [DllImport(Library)] public static extern void VexilGetDatabaseInfo(out DatabaseInfo destination, ulong size);
        [DllImport(Library)] public static extern void VexilSetDatabaseInfo(ref DatabaseInfo source, ulong size);
        [DllImport(Library)] public static extern ulong VexilGetNumCanMessages();
        [DllImport(Library)] public static extern byte VexilGetCanMessageData(uint messageIndex, out CanMessageRecord record);
        [DllImport(Library)] public static extern byte VexilGetNumCanSignalsInCanMessage(uint messageIndex, out uint count);
        [DllImport(Library)] public static extern byte VexilGetCanSignalData(uint messageIndex, uint signalIndex, out CanSignalRecord record);
        [DllImport(Library)] public static extern byte VexilGetNumEnumsInCanSignal(uint messageIndex, uint signalIndex, out uint count);
        [DllImport(Library)] public static extern byte VexilGetCanSignalEnumData(uint messageIndex, uint signalIndex, uint enumIndex, out CanEnumRecord record);
        [DllImport(Library)] public static extern byte VexilAppendCanMessage(ref CanMessageRecord record);
        [DllImport(Library)] public static extern byte VexilAppendCanSignalToCanMessage(uint messageIndex, ref CanSignalRecord record);
        [DllImport(Library)] public static extern byte VexilAppendEnumToCanSignal(uint messageIndex, uint signalIndex, ref CanEnumRecord record);
        [DllImport(Library)] public static extern ulong VexilGetNumCanErrors();
        [DllImport(Library)] public static extern byte VexilGetErrorData(uint errorIndex, out ParseError record);
        [DllImport(Library)] public static extern byte VexilWriteDbcFile(byte[] path, uint pathBufferSize, Order order, out ResultCode resultCode);
    }

    // -- Exceptions --

    public class VexilException : Exception
    {
        public VexilException(string message, Exception cause = null) : base(message, cause) { }
    }

    // The library is missing, cannot be loaded, or has another version than this file needs.
    public sealed class LibraryException : VexilException
    {
        public LibraryException(string message, Exception cause = null) : base(message, cause) { }
    }

    // A file could not be read or written.
    public sealed class FileException : VexilException
    {
        public ResultCode Code { get; }

        internal FileException(string action, string path, ResultCode code)
            : base("cannot " + action + " \"" + path + "\": " + Reason(code) + " (result code " + (uint)code + ")")
        {
            Code = code;
        }

        private static string Reason(ResultCode code)
        {
            switch (code)
            {
                case ResultCode.Closed: return "there is no message to write";
                case ResultCode.PathTooLong: return "the path is longer than 259 bytes";
                case ResultCode.PathInvalid: return "the path is not valid UTF-8, or contains a NUL";
                case ResultCode.PathEmpty: return "the path is empty";
                case ResultCode.OpenFailed: return "the system could not open the file";
                default: return "reading or writing failed";
            }
        }
    }

    public enum FrameResult
    {
        Ok = 0, BadLayout = 2, TooShort = 3, BadScaling = 4, OutOfRange = 5, NotPresent = 6, NoSelector = 7
    }

    // A value could not be decoded or encoded.
    public sealed class FrameException : VexilException
    {
        public FrameResult Result { get; }

        public FrameException(string signal, FrameResult result) : base(signal + ": " + Reason(result))
        {
            Result = result;
        }

        private static string Reason(FrameResult result)
        {
            switch (result)
            {
                case FrameResult.BadLayout: return "length, byte order or value type of the signal is not valid";
                case FrameResult.TooShort: return "the frame is too short for the signal";
                case FrameResult.BadScaling: return "factor or offset of the signal is not valid";
                case FrameResult.OutOfRange: return "the value is out of range";
                case FrameResult.NotPresent: return "the multiplexer selects other signals";
                case FrameResult.NoSelector: return "the message has no multiplexer";
                default: return "unknown result";
            }
        }
    }

    // -- Text --

    public static class Text
    {
        private static readonly UTF8Encoding Strict = new UTF8Encoding(false, true);

        // Returns the text of a field: UTF-8 up to the NUL.
        public static string Load(byte[] field)
        {
            int end = Array.IndexOf(field, (byte)0);
            return Encoding.UTF8.GetString(field, 0, end < 0 ? field.Length : end);
        }

        // Returns a text as the bytes of a field. Throws ArgumentException, with the name of the field, for
        // a text that does not fit or cannot be encoded.
        public static byte[] Store(string name, string text, int size)
        {
            if (text == null)
                throw new ArgumentNullException(name);
            if (text.IndexOf('\0') >= 0)
                throw new ArgumentException("the text contains a NUL", name);
            byte[] bytes;
            try
            {
                bytes = Strict.GetBytes(text);
            }
            catch (EncoderFallbackException)
            {
                throw new ArgumentException("the text has a character that UTF-8 cannot encode", name);
            }
            if (bytes.Length >= size)
                throw new ArgumentException("the text has " + bytes.Length + " bytes; the maximum is " + (size - 1), name);
            Array.Resize(ref bytes, size);
            return bytes;
        }

        // Returns a path as UTF-8 with its NUL. Throws FileException for a path that the library would refuse
        // or cut.
        internal static byte[] StorePath(string action, string path)
        {
            if (path == null)
                throw new ArgumentNullException("path");
            byte[] bytes;
            try
            {
                bytes = Strict.GetBytes(path + "\0");
            }
            catch (EncoderFallbackException)
            {
                throw new FileException(action, path, ResultCode.PathInvalid);
            }
            if (path.IndexOf('\0') >= 0)
                throw new FileException(action, path.Replace("\0", "\\0"), ResultCode.PathInvalid);
            if (bytes.Length > Limits.MaxPathBufferSize)
                throw new FileException(action, path, ResultCode.PathTooLong);
            return bytes;
        }
    }

    // -- Messages, signals and refused statements --

    // A BO_ or SG_ statement that the library refused; see ParseError in vexil64.h.
    public sealed class StatementError
    {
        public StatementError(ParseError record)
        {
            Line = record.Line;
            Step = record.Code;
            // The last byte of the statement is missing in the text, so its last character may be cut.
            Text = Vexil64.Text.Load(record.Text).TrimEnd('\uFFFD');
        }

        public uint Line { get; }
        public Step Step { get; }
        public string Text { get; }             // at most 254 bytes of the statement
        public string FirstLine { get { return Text.Split('\n')[0]; } }
    }

    public sealed class Signal
    {
        internal readonly SortedDictionary<int, string> descriptions = new SortedDictionary<int, string>();
        internal readonly Message message;
        internal readonly uint position;

        public Signal(CanSignalRecord record, Message message = null, uint position = 0)
        {
            this.message = message;
            this.position = position;
            Name = Text.Load(record.Name);
            LongName = Text.Load(record.LongName);
            Unit = Text.Load(record.UnitUtf8);
            AsciiUnit = Text.Load(record.Unit);
            Receivers = Text.Load(record.ReceiverList);
            Comment = Text.Load(record.Comment);
            MultiplexType = record.MultiplexType;
            MultiplexValue = record.MultiplexValue;
            StartBit = record.StartBit;
            BitLength = record.BitLength;
            ByteOrder = record.ByteOrder;
            ValueType = record.ValueType;
            Factor = record.Factor;
            Offset = record.Offset;
            Minimum = record.Minimum;
            Maximum = record.Maximum;
            StartValue = record.StartValue;
            InactiveValue = record.InactiveValue;
        }

        public string Name { get; }
        public string LongName { get; }
        public string Unit { get; }
        public string AsciiUnit { get; }
        public string Receivers { get; }        // separated by commas
        public string Comment { get; }
        public Multiplex MultiplexType { get; }
        public uint MultiplexValue { get; }
        public uint StartBit { get; }
        public uint BitLength { get; }
        public ByteOrder ByteOrder { get; }
        public ValueType ValueType { get; }
        public double Factor { get; }
        public double Offset { get; }
        public double Minimum { get; }
        public double Maximum { get; }
        public int StartValue { get; }
        public int InactiveValue { get; }
        public IReadOnlyDictionary<int, string> Descriptions { get { return descriptions; } }  // by raw value
    }

    public sealed class Message
    {
        internal readonly List<Signal> signals = new List<Signal>();
        internal readonly uint position;

        public Message(CanMessageRecord record, uint position = 0)
        {
            this.position = position;
            Id = record.Id;
            Name = Text.Load(record.Name);
            LongName = Text.Load(record.LongName);
            Dlc = record.Dlc;
            Transmitter = Text.Load(record.Transmitter);
            Comment = Text.Load(record.Comment);
            SendType = Text.Load(record.SendType);
            CycleTime = record.CycleTime;
        }

        public uint Id { get; }                 // bit 31 is set for extended ids
        public uint FrameId { get { return Id & 0x7FFFFFFF; } }
        public bool IsExtended { get { return Id >> 31 != 0; } }
        public string Name { get; }
        public string LongName { get; }
        public uint Dlc { get; }                // payload size in bytes
        public string Transmitter { get; }
        public string Comment { get; }
        public string SendType { get; }
        public int CycleTime { get; }           // by custom in milliseconds
        public IReadOnlyList<Signal> Signals { get { return signals; } }

        // The first multiplexer, or null if there is none.
        public Signal Selector { get { return signals.Find(s => s.MultiplexType == Multiplex.Selector); } }

        // Returns the first signal with a name, or null if there is none.
        public Signal FindSignal(string name) { return signals.Find(s => s.Name == name); }
    }

    // -- Messages and signals to append. The library makes the names from the long names. --

    public sealed class NewMessage
    {
        public uint Id { get; set; }
        public string LongName { get; set; } = "";
        public uint Dlc { get; set; }
        public string Transmitter { get; set; } = "";
        public string Comment { get; set; } = "";

        internal CanMessageRecord Record()
        {
            return new CanMessageRecord
            {
                Id = Id,
                Dlc = Dlc,
                LongName = Text.Store("LongName", LongName, Limits.LongTextSize),
                Transmitter = Text.Store("Transmitter", Transmitter, Limits.ShortTextSize),
                Comment = Text.Store("Comment", Comment, Limits.LongTextSize)
            };
        }
    }

    public sealed class NewSignal
    {
        public string LongName { get; set; } = "";
        public string Unit { get; set; } = "";
        public string Receivers { get; set; } = "";     // separated by commas
        public string Comment { get; set; } = "";
        public Multiplex MultiplexType { get; set; }
        public uint MultiplexValue { get; set; }
        public uint StartBit { get; set; }
        public uint BitLength { get; set; }
        public ByteOrder ByteOrder { get; set; } = ByteOrder.LittleEndian;
        public ValueType ValueType { get; set; }
        public double Factor { get; set; } = 1;
        public double Offset { get; set; }
        public double Minimum { get; set; }
        public double Maximum { get; set; }
        public int StartValue { get; set; }
        public int InactiveValue { get; set; }

        internal CanSignalRecord Record()
        {
            // The library would change the type of such a signal to signed.
            if ((ValueType == ValueType.Float32 && BitLength != 32) || (ValueType == ValueType.Float64 && BitLength != 64))
                throw new ArgumentException("a " + ValueType + " signal must have " + (ValueType == ValueType.Float32 ? 32 : 64) + " bits", "BitLength");
            return new CanSignalRecord
            {
                LongName = Text.Store("LongName", LongName, Limits.LongTextSize),
                Unit = Text.Store("Unit", Unit, Limits.ShortTextSize),
                ReceiverList = Text.Store("Receivers", Receivers, Limits.LongTextSize),
                Comment = Text.Store("Comment", Comment, Limits.LongTextSize),
                MultiplexType = MultiplexType,
                MultiplexValue = MultiplexValue,
                StartBit = StartBit,
                BitLength = BitLength,
                ByteOrder = ByteOrder,
                ValueType = ValueType,
                Factor = Factor,
                Offset = Offset,
                Minimum = Minimum,
                Maximum = Maximum,
                StartValue = StartValue,
                InactiveValue = InactiveValue
            };
        }
    }

    // -- Networks --

    public sealed class Network
    {
        public const string LibraryVersion = "1.33";

        private const ulong InfoSize = 8;
        private static readonly object Gate = new object();
        private static bool isChecked;          // the library was loaded and has the right version
        private static Network current;         // the network in the database of the library

        private readonly List<Message> messages = new List<Message>();
        private readonly List<StatementError> errors = new List<StatementError>();

        // Reads a file and returns its network. Throws FileException if the file cannot be read. Refused BO_
        // and SG_ statements do not make a read fail: they are in Errors.
        public static Network Read(string path)
        {
            byte[] bytes = Text.StorePath("read", path);
            lock (Gate)
            {
                Start();
                ResultCode code;
                if (Native.VexilReadDbcFile(bytes, (uint)bytes.Length, out code) == 0)
                    throw new FileException("read", path, code);
                return current = new Network();
            }
        }

        // Returns an empty network.
        public static Network New()
        {
            lock (Gate)
            {
                Start();
                return current = new Network();
            }
        }

        public IReadOnlyList<Message> Messages { get { return messages; } }
        public IReadOnlyList<StatementError> Errors { get { return errors; } }
        public Protocol ProtocolType { get; set; }
        public Bus BusType { get; set; }

        // Returns the first message with an id or a name, or null if there is none.
        public Message FindMessage(uint id) { return messages.Find(m => m.Id == id); }
        public Message FindMessage(string name) { return messages.Find(m => m.Name == name); }

        // Adds a message at the end and returns it.
        public Message Append(NewMessage message)
        {
            if (message == null)
                throw new ArgumentNullException("message");
            CanMessageRecord record = message.Record();
            lock (Gate)
            {
                CheckCurrent();
                Expect(Native.VexilAppendCanMessage(ref record));
                messages.Add(FetchMessage((uint)messages.Count));
                return messages[messages.Count - 1];
            }
        }

        // Adds a signal at the end of a message and returns it.
        public Signal Append(Message message, NewSignal signal)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            CanSignalRecord record = signal.Record();
            lock (Gate)
            {
                CheckCurrent();
                CheckOwned(message);
                if (message.signals.Count >= Limits.MaxSignalsPerMessage)
                    throw new InvalidOperationException(message.Name + " already has " + Limits.MaxSignalsPerMessage + " signals");
                Expect(Native.VexilAppendCanSignalToCanMessage(message.position, ref record));
                message.signals.Add(FetchSignal(message, (uint)message.signals.Count));
                return message.signals[message.signals.Count - 1];
            }
        }

        // Adds a value description to a signal. If the value already has a description, the text is added to
        // it after " - ".
        public void Append(Signal signal, int value, string text)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            var record = new CanEnumRecord { Value = value, Text = Text.Store("text", text, Limits.LongTextSize) };
            lock (Gate)
            {
                CheckCurrent();
                CheckOwned(signal.message);
                Expect(Native.VexilAppendEnumToCanSignal(signal.message.position, signal.position, ref record));
                FetchDescriptions(signal);
            }
        }

        // Writes the network to a file. Throws FileException if that fails. Signals of one message that share
        // a name get a numbered suffix; in Messages, a new Message with new signals then replaces this one.
        public void Write(string path, Order order = Order.AsStored)
        {
            byte[] bytes = Text.StorePath("write", path);
            lock (Gate)
            {
                CheckCurrent();
                var info = new DatabaseInfo { ProtocolType = ProtocolType, BusType = BusType };
                Native.VexilSetDatabaseInfo(ref info, InfoSize);
                ResultCode code;
                byte success = Native.VexilWriteDbcFile(bytes, (uint)bytes.Length, order, out code);
                // If only the last line could not be written, the call succeeds with StreamError.
                if (success == 0 || code != ResultCode.Closed)
                    throw new FileException("write", path, code);
                TakeNewNames();
            }
        }

        // Copies the content of the database.
        private Network()
        {
            DatabaseInfo info;
            Native.VexilGetDatabaseInfo(out info, InfoSize);
            ProtocolType = info.ProtocolType;
            BusType = info.BusType;
            for (Message message; (message = FetchMessage((uint)messages.Count)) != null;)
                messages.Add(message);
            ParseError record;
            while (Native.VexilGetErrorData((uint)errors.Count, out record) != 0)
                errors.Add(new StatementError(record));
        }

        // Clears the database. A clear keeps the bus type, so it is set to that of an empty network.
        private static void Start()
        {
            if (!isChecked)
                CheckLibrary();
            isChecked = true;
            current = null;
            var info = new DatabaseInfo();
            Native.VexilClearData();
            Native.VexilSetDatabaseInfo(ref info, InfoSize);
        }

        private static void CheckLibrary()
        {
            string version;
            try
            {
                version = Native.VexilGetLibraryVersion().ToString("0.00", System.Globalization.CultureInfo.InvariantCulture);
            }
            catch (DllNotFoundException error)
            {
                throw new LibraryException("the vexil64 library was not found. Put vexil64.dll or libvexil64.so into the folder of the program, or install it. " + error.Message, error);
            }
            catch (BadImageFormatException error)
            {
                throw new LibraryException("the vexil64 library needs a 64-bit process, and this process is not, or the file of the library is damaged", error);
            }
            catch (EntryPointNotFoundException error)
            {
                throw new LibraryException("the library that was found is not vexil64: it has no VexilGetLibraryVersion", error);
            }
            if (version != LibraryVersion)
                throw new LibraryException("the library is vexil64 " + version + ", but this program needs vexil64 " + LibraryVersion);
        }

        private void CheckCurrent()
        {
            if (current != this)
                throw new InvalidOperationException("the library now holds another network; read or create this network again");
        }

        private void CheckOwned(Message message)
        {
            if (message == null)
                throw new ArgumentNullException("message");
            if (message.position >= messages.Count || messages[(int)message.position] != message)
                throw new ArgumentException(message.Name + " is not part of this network", "message");
        }

        // The arguments were checked, so a call fails only if code that does not use Network changed the
        // database.
        private static void Expect(byte success)
        {
            if (success == 0)
                throw new InvalidOperationException("other code of this process changed the database of the library");
        }

        private static Message FetchMessage(uint index)
        {
            CanMessageRecord record;
            if (Native.VexilGetCanMessageData(index, out record) == 0)
                return null;
            var message = new Message(record, index);
            for (uint s = 0; s < record.SignalCount; ++s)
                message.signals.Add(FetchSignal(message, s));
            return message;
        }

        private static Signal FetchSignal(Message message, uint index)
        {
            CanSignalRecord record;
            Expect(Native.VexilGetCanSignalData(message.position, index, out record));
            var signal = new Signal(record, message, index);
            if (record.EnumCount != 0)
                FetchDescriptions(signal);
            return signal;
        }

        private static void FetchDescriptions(Signal signal)
        {
            uint count;
            Expect(Native.VexilGetNumEnumsInCanSignal(signal.message.position, signal.position, out count));
            for (uint e = 0; e < count; ++e)
            {
                CanEnumRecord record;
                // Not an error: a text that cannot be cut at a character fails alone.
                if (Native.VexilGetCanSignalEnumData(signal.message.position, signal.position, e, out record) != 0)
                    signal.descriptions[record.Value] = Text.Load(record.Text);
            }
        }

        private void TakeNewNames()
        {
            for (int m = 0; m < messages.Count; ++m)
            {
                Message fetched = FetchMessage((uint)m);
                for (int s = 0; s < fetched.signals.Count; ++s)
                {
                    if (fetched.signals[s].Name != messages[m].signals[s].Name)
                    {
                        messages[m] = fetched;
                        break;
                    }
                }
            }
        }
    }

    // -- Frames. Decodes and encodes values by the rules of vexil64_frame.h. A function that throws does not
    // -- change the frame.

    public static class Frame
    {
        // Decodes the physical value of a signal. Treats every signal as present: see IsPresent.
        public static double Decode(Signal signal, byte[] data)
        {
            return RawToValue(signal, DecodeRaw(signal, data));
        }

        // Encodes a physical value. Bits outside the signal do not change.
        public static void Encode(Signal signal, double value, byte[] data)
        {
            EncodeRaw(signal, ValueToRaw(signal, value), data);
        }

        // Decodes the physical values of the signals that are present in a frame, by name.
        public static Dictionary<string, double> Decode(Message message, byte[] data)
        {
            if (message == null)
                throw new ArgumentNullException("message");
            var values = new Dictionary<string, double>();
            Signal selector = message.Selector;
            foreach (Signal signal in message.Signals)
            {
                if (IsPresent(signal, selector, data))
                    values[signal.Name] = Decode(signal, data);
            }
            return values;
        }

        // Decodes the raw value of a signal. The raw value of a signed signal is sign-extended to 64 bits, so
        // a cast to long gives the number. The raw value of a floating-point signal is its bit pattern.
        public static ulong DecodeRaw(Signal signal, byte[] data)
        {
            CheckLayout(signal);
            CheckBounds(signal, data);
            int step = signal.ByteOrder == ByteOrder.LittleEndian ? 1 : -1;
            long lowest = LowestBit(signal);
            long at = lowest / 8;
            ulong bits = (ulong)data[at] >> (int)(lowest % 8);
            for (int count = 8 - (int)(lowest % 8); count < signal.BitLength; count += 8)
            {
                at += step;
                bits |= (ulong)data[at] << count;
            }
            return ExtendSign(signal, bits & Mask(signal.BitLength));
        }

        // Encodes a raw value. Bits outside the signal do not change.
        public static void EncodeRaw(Signal signal, ulong raw, byte[] data)
        {
            CheckLayout(signal);
            CheckBounds(signal, data);
            ulong mask = Mask(signal.BitLength);
            if (raw != ExtendSign(signal, raw & mask))
                throw new FrameException(signal.Name, FrameResult.OutOfRange);
            int step = signal.ByteOrder == ByteOrder.LittleEndian ? 1 : -1;
            long lowest = LowestBit(signal);
            int shift = (int)(lowest % 8);
            ulong bits = raw & mask;
            for (long at = lowest / 8; mask != 0; at += step)
            {
                data[at] = unchecked((byte)((data[at] & ~(mask << shift)) | bits << shift));
                mask >>= 8 - shift;
                bits >>= 8 - shift;
                shift = 0;
            }
        }

        // Converts a raw value into a physical value.
        public static double RawToValue(Signal signal, ulong raw)
        {
            CheckLayout(signal);
            if (!IsFinite(signal.Factor) || !IsFinite(signal.Offset))
                throw new FrameException(signal.Name, FrameResult.BadScaling);
            double number = Number(signal, raw);
            double value = number * signal.Factor + signal.Offset;
            if (IsFinite(number) && !IsFinite(value))
                throw new FrameException(signal.Name, FrameResult.OutOfRange);
            return value;
        }

        // Converts a physical value into the nearest raw value; halfway cases away from zero.
        public static ulong ValueToRaw(Signal signal, double value)
        {
            CheckLayout(signal);
            if (!IsFinite(signal.Factor) || !IsFinite(signal.Offset) || signal.Factor == 0)
                throw new FrameException(signal.Name, FrameResult.BadScaling);
            double number = (value - signal.Offset) / signal.Factor;
            bool single = signal.ValueType == ValueType.Float32;
            if (single || signal.ValueType == ValueType.Float64)
            {
                if (IsFinite(value) && !(Math.Abs(number) <= (single ? float.MaxValue : double.MaxValue)))
                    throw new FrameException(signal.Name, FrameResult.OutOfRange);
                return single ? BitConverter.ToUInt32(BitConverter.GetBytes((float)number), 0)
                              : unchecked((ulong)BitConverter.DoubleToInt64Bits(number));
            }
            number = Round(number);
            double half = Math.Pow(2, signal.BitLength - 1);
            bool isSigned = signal.ValueType == ValueType.Signed;
            if (!(number >= (isSigned ? -half : 0) && number < (isSigned ? half : half * 2)))
                throw new FrameException(signal.Name, FrameResult.OutOfRange);
            // Converted through long, because the number can be negative. From 2^63 on, the top bit is added.
            return unchecked(number < TwoTo63 ? (ulong)(long)number : (ulong)(long)(number - TwoTo63) + (1UL << 63));
        }

        // Returns whether a signal is present in a frame. The selector is the multiplexer of the same message.
        // Throws FrameException if it is missing or cannot be decoded.
        public static bool IsPresent(Signal signal, Signal selector, byte[] data)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            if (signal.MultiplexType != Multiplex.Selected)
                return true;
            if (selector == null || selector.MultiplexType != Multiplex.Selector)
                throw new FrameException(signal.Name, FrameResult.NoSelector);
            ulong raw = DecodeRaw(selector, data);
            if (selector.ValueType == ValueType.Float32 || selector.ValueType == ValueType.Float64)
                throw new FrameException(selector.Name, FrameResult.BadLayout);
            return (raw & Mask(selector.BitLength)) == signal.MultiplexValue;
        }

        // Returns whether a physical value is within minimum and maximum; true if both are 0. A value may
        // exceed a limit by the rounding error of encoding.
        public static bool IsWithinLimits(Signal signal, double value)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            if (double.IsNaN(value))
                return false;
            if (!(Math.Abs(signal.Minimum) > 0) && !(Math.Abs(signal.Maximum) > 0))
                return true;
            return value >= signal.Minimum - Slack(signal, signal.Minimum)
                && value <= signal.Maximum + Slack(signal, signal.Maximum);
        }

        private const double TwoTo63 = 9223372036854775808.0;
        private const double FloatEpsilon = 1.1920928955078125e-7;

        private static void CheckLayout(Signal signal)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            if (signal.BitLength < 1 || signal.BitLength > 64
                || signal.ByteOrder > ByteOrder.LittleEndian || signal.ValueType > ValueType.Float64
                || (signal.ValueType == ValueType.Float32 && signal.BitLength != 32)
                || (signal.ValueType == ValueType.Float64 && signal.BitLength != 64))
                throw new FrameException(signal.Name, FrameResult.BadLayout);
        }

        private static void CheckBounds(Signal signal, byte[] data)
        {
            if (data == null)
                throw new ArgumentNullException("data");
            long before = signal.ByteOrder == ByteOrder.LittleEndian ? signal.StartBit : signal.StartBit ^ 7;
            if (before + signal.BitLength > 8L * data.Length)
                throw new FrameException(signal.Name, FrameResult.TooShort);
        }

        // Returns the number of the least significant bit of a signal.
        private static long LowestBit(Signal signal)
        {
            long start = signal.StartBit;
            return signal.ByteOrder == ByteOrder.LittleEndian ? start : ((start ^ 7) + signal.BitLength - 1) ^ 7;
        }

        private static ulong Mask(uint bits) { return ulong.MaxValue >> (int)(64 - bits); }

        private static ulong ExtendSign(Signal signal, ulong bits)
        {
            ulong sign = 1UL << (int)(signal.BitLength - 1);
            return signal.ValueType == ValueType.Signed ? unchecked((bits ^ sign) - sign) : bits;
        }

        private static double Number(Signal signal, ulong raw)
        {
            switch (signal.ValueType)
            {
                case ValueType.Float32: return BitConverter.ToSingle(BitConverter.GetBytes(unchecked((uint)raw)), 0);
                case ValueType.Float64: return BitConverter.Int64BitsToDouble(unchecked((long)raw));
                case ValueType.Signed: return unchecked((long)raw);
                // Converted in two exact halves, because old runtimes round twice when they convert a ulong.
                default: return (raw >> 32) * 4294967296.0 + unchecked((uint)raw);
            }
        }

        // Rounds to the nearest integer, and halfway cases away from zero.
        private static double Round(double number)
        {
            if (!(Math.Abs(number) < 4503599627370496.0))
                return number;
            double integer = (long)number;
            if (number - integer >= 0.5)
                return integer + 1;
            return integer - number >= 0.5 ? integer - 1 : integer;
        }

        // Returns how far rounding can move an encoded value beyond a limit.
        private static double Slack(Signal signal, double limit)
        {
            if (signal.ValueType == ValueType.Float64)
                return 0;
            return signal.ValueType == ValueType.Float32 ? Math.Abs(limit) * FloatEpsilon : Math.Abs(signal.Factor) / 2;
        }

        private static bool IsFinite(double number) { return !double.IsNaN(number) && !double.IsInfinity(number); }
    }
}
