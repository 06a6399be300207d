// Runs the tests of Vexil64.cs: all public static methods of the test classes. Prints the failures; the
// exit code is 1 if there are any. Without arguments, only loads the library and prints the error.
//   tests.exe RECORD_LAYOUT FRAME_ANSWERS LAYOUT_FILE SAMPLES WORK
//     RECORD_LAYOUT, FRAME_ANSWERS  C programs, whose output is compared with that of the binding
//     LAYOUT_FILE                   record_layout.txt
//     SAMPLES                       the folder of the samples
//     WORK                          a folder for written files
// SPDX-License-Identifier: MIT
using System;
using System.Diagnostics;
using System.Linq;
using System.Reflection;

static class Runner
{
    public static string RecordLayout, FrameAnswers, LayoutFile, Samples, Work;

    static int Main(string[] arguments)
    {
        if (arguments.Length == 0)
            return LoadLibrary();
        RecordLayout = arguments[0];
        FrameAnswers = arguments[1];
        LayoutFile = arguments[2];
        Samples = arguments[3];
        Work = arguments[4];
        int count = 0, failures = 0;
        foreach (Type type in new[] { typeof(RecordTests), typeof(ReadTests), typeof(WriteTests), typeof(FrameTests) })
        {
            foreach (MethodInfo test in type.GetMethods(BindingFlags.Public | BindingFlags.Static | BindingFlags.DeclaredOnly))
            {
                ++count;
                try
                {
                    test.Invoke(null, null);
                }
                catch (TargetInvocationException error)
                {
                    ++failures;
                    Console.WriteLine("FAILED " + type.Name + "." + test.Name + ": " + error.InnerException);
                }
            }
        }
        Console.WriteLine(count + " tests, " + failures + " failed");
        return failures == 0 && count > 0 ? 0 : 1;
    }

    static int LoadLibrary()
    {
        try
        {
            Vexil64.Network.New();
            return 0;
        }
        catch (Exception error)
        {
            Console.WriteLine(error.GetType().Name + ": " + error.Message);
            return 1;
        }
    }

    // Runs a program and returns its output.
    public static string Output(string program, string input = "")
    {
        var start = new ProcessStartInfo(program) { UseShellExecute = false, RedirectStandardInput = true, RedirectStandardOutput = true };
        using (Process process = Process.Start(start))
        {
            // Writes and reads at the same time: with a full pipe, each side waits for the other to read.
            var output = process.StandardOutput.ReadToEndAsync();
            process.StandardInput.Write(input);
            process.StandardInput.Close();
            string text = output.Result;
            process.WaitForExit();
            Expect.Equal(0, process.ExitCode);
            return text;
        }
    }
}

static class Expect
{
    public static void Equal<T>(T expected, T actual)
    {
        if (!Equals(expected, actual))
            throw new Exception("expected <" + expected + ">, got <" + actual + ">");
    }

    public static void Sequence<T>(T[] expected, T[] actual)
    {
        if (!expected.SequenceEqual(actual))
            throw new Exception("expected " + string.Join(", ", expected) + ", got " + string.Join(", ", actual));
    }

    public static T Throws<T>(string message, Action action) where T : Exception
    {
        try
        {
            action();
        }
        catch (T error)
        {
            // Not the whole message: runtimes append the parameter name in different forms.
            if (!error.Message.StartsWith(message))
                throw new Exception("expected the message <" + message + ">, got <" + error.Message + ">");
            return error;
        }
        throw new Exception("no " + typeof(T).Name);
    }
}
